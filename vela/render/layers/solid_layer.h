// One colour over a surface's coverage: drop shadows and the rings of a glow.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"

namespace vela {

void fillSolid(const LayerTarget& target, const Coverage& coverage, Color color, std::uint8_t alpha);

} // namespace vela
