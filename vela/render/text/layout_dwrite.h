// Texts laid out by DirectWrite, in fonts of ours. It may fail, and then says so: GDI draws instead.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/render/text/fonts_gdi.h"
#include "vela/render/text/text_look.h"

#include <dwrite.h>

namespace vela {

// Font sizes and rectangles are pixels already, so to DirectWrite a pixel is its unit.
inline constexpr float kPixelsPerUnit = 1.0F;

// The room of a line that is as long as it is.
inline constexpr Size kNoRoom{0, 0};

// Lays finished lines out in a room, with the widths and the line height that GDI has for the font; null when
// it cannot.
ComPointer<IDWriteTextLayout> makeDirectWriteLayout(const TextLines& lines, const Font& font, Size room,
                                                    TextWrap wrap, TextAlign align);

} // namespace vela
