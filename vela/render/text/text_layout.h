// A text, laid out and ready to be drawn: its glyphs and their places, relative to its top left corner.
#pragma once

#include "vela/render/text/glyph_mask.h"

#include <vector>

namespace vela {

struct PositionedGlyph {
    const GlyphMask* mask; // borrowed: masks live as long as the process
    Point pen;
};

struct TextLayout {
    std::vector<PositionedGlyph> glyphs;
    std::vector<Rect> lines; // under and through letters
    Rect inkBounds;          // around every pixel that drawing may touch

    void addGlyph(const GlyphMask& mask, Point pen);
    void addLine(const Rect& line);
};

} // namespace vela
