#include "vela/render/text/text_layout.h"

namespace vela {

void TextLayout::addGlyph(const GlyphMask& mask, Point pen)
{
    if (isEmpty(mask.box))
        return;
    glyphs.push_back({&mask, pen});
    inkBounds = around(inkBounds, movedBy(mask.box, pen));
}

void TextLayout::addLine(const Rect& line)
{
    lines.push_back(line);
    inkBounds = around(inkBounds, line);
}

} // namespace vela
