// Letters as DirectWrite itself draws them, on their way to a device context.
#pragma once

#include "vela/render/text/layout_dwrite.h"

namespace vela {

// Draws what of the layout falls into the area, over what the context shows there, with the layout's top left
// corner at the origin. False when something failed: then nothing has been drawn.
bool paintLayout(HDC dc, const Rect& area, Point origin, const Font& font, IDWriteTextLayout& layout,
                 Color color);

} // namespace vela
