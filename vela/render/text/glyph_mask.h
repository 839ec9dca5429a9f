// A letter as pixels: a text engine rasterises each glyph of a font once, and from then on drawing a text is
// blending such masks, in any colour.
#pragma once

#include "vela/geometry.h"

#include <cstdint>
#include <vector>

namespace vela {

// How much of each pixel's red, green and blue a glyph covers: three bytes a pixel in that order, rows from
// top to bottom.
struct GlyphMask {
    Rect box; // pixels, from the pen's place on the base line
    std::vector<std::uint8_t> coverage;
};

} // namespace vela
