// Text, drawn and measured. Rectangles are device pixels; fonts are records at a window's DPI, for a device
// context knows only the system's. What does not fit its rectangle ends in an ellipsis; an ampersand is an
// ampersand. DirectWrite draws, GDI where DirectWrite cannot, and both put the same glyphs at the same
// places. UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/text/text_lines.h"
#include "vela/theme/records/theme.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vela {

enum class TextAlign : std::uint8_t { Left, Center, Right };

// Which of a font record's two colours is used.
enum class TextTone : std::uint8_t { Enabled, Disabled };

struct TextLook {
    TextTone tone = TextTone::Enabled;
    TextAlign align = TextAlign::Left;
    TextWrap wrap = TextWrap::SingleLine;
};

// Begins to open DirectWrite on a thread of its own: the system lists its fonts meanwhile, which takes longer
// than the making of a window. Without it, or before it is done, the first text waits. Once is enough.
void openTextEngine();

// A single line stands in the middle of the rectangle's height, wrapped lines begin at its top.
void drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look = {});

// One line in the middle of the rectangle, always by GDI.
void drawCenteredText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                      std::int32_t dpi, TextTone tone = TextTone::Enabled);

// One line from the rectangle's top left corner, neither cut nor clipped, by GDI: for fields that scroll.
void drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                       std::int32_t dpi, Color color);

// The height in pixels of the text wrapped to a width.
std::int32_t measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi, std::int32_t width);

// The height of one line, and the width of a text on one line.
std::int32_t lineHeight(const FontSpec& font, std::int32_t dpi);
std::int32_t measureTextWidth(std::wstring_view text, const FontSpec& font, std::int32_t dpi);

// ends[i] becomes the width of the text up to and including unit i: for carets and selections.
void measureTextEnds(std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                     std::vector<std::int32_t>& ends);

// How many fonts and how many layouts the process has made: repainting what was painted before makes none.
struct TextStatistics {
    std::size_t fonts;
    std::size_t layouts;
};
TextStatistics textStatistics() noexcept;

} // namespace vela
