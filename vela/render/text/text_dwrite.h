// The DirectWrite engine behind drawText. Everything here may fail, and then says so: GDI draws instead.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/render/text/fonts_gdi.h"
#include "vela/render/text/glyph_painter.h"
#include "vela/render/text/text.h"
#include "vela/render/text/text_layout.h"

#include <optional>

#include <dwrite.h>

namespace vela {

// Lays finished lines out with the widths and the line height that GDI has for the font; null when it cannot.
ComPointer<IDWriteTextLayout> makeDirectWriteLayout(const TextLines& lines, const Font& font,
                                                    std::int32_t width, TextAlign align);

// The same, ready to be drawn: for text of any script. None when DirectWrite cannot draw all of it.
std::optional<TextLayout> layoutComplexText(const TextLines& lines, const Font& font, std::int32_t width,
                                            TextAlign align);

// The same by glyphs alone, where each stands at the width that GDI measures before it: none for text with a
// letter that the font lacks. The text is plain.
std::optional<TextLayout> layoutPlainText(const TextLines& lines, const Font& font, std::int32_t width,
                                          TextAlign align, const TextMeasurer& measurer);

// Whichever does it sooner.
std::optional<TextLayout> layoutText(const TextLines& lines, const Font& font, std::int32_t width,
                                     TextAlign align, const TextMeasurer& measurer);

// Draws layouts that have glyphs. There is one once there is such a layout.
const GlyphPainter& glyphPainter() noexcept;

} // namespace vela
