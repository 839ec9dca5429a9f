// The light on a surface as a carved body: its edges are rounded off, so the side towards the light shines
// and the side away from it lies in shade, and its face bulges very slightly.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// A style without depth is flat. A surface shaped by a bitmap is left alone: the bitmap is drawn with its own
// light.
bool castsSpatialShading(const SurfaceStyle& style) noexcept;

void fillSpatialShading(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style);

} // namespace vela
