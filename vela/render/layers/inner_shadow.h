// The inner shadow layer: darkness that falls inwards from a surface's edges.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// How far the shadow follows the outline: the smaller the surface, the closer.
enum class InnerShadowReach : std::uint8_t {
    Rectangle,       // every pixel, by its distance to the rectangle's edges
    RectangleInside, // covered pixels only, by the same distance
    Outline,         // covered pixels, by their distance to the outline
};
InnerShadowReach innerShadowReach(const Coverage& coverage) noexcept;

// The style's innerShadow, 0 to 255, is the darkness at the edge.
void fillInnerShadow(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style);

} // namespace vela
