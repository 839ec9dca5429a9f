// The tones that a painted surface shows to what is drawn on it, as far as its record tells: fill or
// gradient, and what shines through where it is not opaque.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// backdrop: the tones of what the surface lies on.
ToneRange surfaceTones(const SurfaceStyle& surface, const ToneRange& backdrop) noexcept;

} // namespace vela
