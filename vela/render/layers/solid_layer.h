// One colour over a surface's coverage or along its outline: fills, drop shadows, the rings of a glow;
// borders.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"

namespace vela {

void fillSolid(const LayerTarget& target, const Coverage& coverage, Color color, std::uint8_t alpha);

// Along the inside of the shape's outline, the pen's width deep; with a coverage that is not cut, antialiased
// on the inside and everywhere beyond the outline.
void fillStroke(const LayerTarget& target, const Coverage& coverage, Color color, std::int32_t penWidth);

} // namespace vela
