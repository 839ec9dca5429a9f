// The insets that a surface's geometry keeps free around each part of what stands on it.
#pragma once

#include "vela/render/pixels/insets.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

using PartInsets = Insets SurfaceGeometry::*;

// The part's own or, where those are all 0, the safe ones.
Insets insetsOf(const SurfaceStyle& style, PartInsets part) noexcept;

} // namespace vela
