// The DirectWrite engine behind drawText. Everything here may fail, and then says so: GDI draws instead.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/render/fonts_gdi.h"
#include "vela/render/text.h"

#include <dwrite.h>

namespace vela {

struct DirectWriteLayout {
    ComPointer<IDWriteTextLayout> layout; // empty when it could not be made
    Rect ink;                             // pixels that drawing may touch, relative to the layout's corner
};

// Lays finished lines out with the widths and the line height that GDI has for the font.
DirectWriteLayout makeDirectWriteLayout(const TextLines& lines, const Font& font, std::int32_t width,
                                        TextAlign align);

// Draws over what the device context shows. Only pixels of the area, which is not empty, are touched; false
// when nothing was drawn. The layout is one that could be made.
bool tryDrawDirectWrite(HDC dc, const DirectWriteLayout& layout, Point corner, const Rect& area, Color color);

} // namespace vela
