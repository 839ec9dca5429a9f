// The DirectWrite engine behind drawText. Everything here may fail, and then says so: GDI draws instead.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/render/text/fonts_gdi.h"
#include "vela/render/text/glyph_picture.h"
#include "vela/render/text/text.h"

#include <optional>

#include <dwrite.h>

namespace vela {

// Lays finished lines out with the widths and the line height that GDI has for the font; null when it cannot.
ComPointer<IDWriteTextLayout> makeDirectWriteLayout(const TextLines& lines, const Font& font,
                                                    std::int32_t width, TextAlign align);

// The same, ready to be drawn; none when DirectWrite cannot draw all of it.
std::optional<PlacedText> placeLayout(const TextLines& lines, const Font& font, std::int32_t width,
                                      TextAlign align);

// The same by letters alone, where each stands at the width that GDI measures before it: none for text with a
// letter that the font lacks. The text is plain.
std::optional<PlacedText> placePlainText(const TextLines& lines, const Font& font, std::int32_t width,
                                         TextAlign align, const TextRuler& ruler);

// Whichever does it sooner.
std::optional<PlacedText> placeText(const TextLines& lines, const Font& font, std::int32_t width,
                                    TextAlign align, const TextRuler& ruler);

// Draws placed texts that have letters. There is one once there is such a text.
const TextInk& textInk() noexcept;

} // namespace vela
