// Text, drawn and measured. DirectWrite draws, GDI where DirectWrite cannot, and both put the same glyphs at
// the same places. UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/text/text_look.h"
#include "vela/render/text/text_places.h"
#include "vela/theme/records/theme.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vela {

// One line in the middle of the rectangle, always by GDI.
void drawCenteredText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                      std::int32_t dpi, TextTone tone = TextTone::Enabled);

// How many fonts and how many layouts the process has made, for tests: repainting what was painted before
// makes none; and how many layouts are kept.
struct TextStatistics {
    std::size_t fonts;
    std::size_t layouts;
    std::size_t kept;
};
TextStatistics textStatistics() noexcept;

// What paint.h promises about text.
namespace render {

void drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look);
void drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                       std::int32_t dpi, Color color);
std::int32_t measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi, std::int32_t width);
std::int32_t lineHeight(const FontSpec& font, std::int32_t dpi);
std::int32_t measureTextWidth(std::wstring_view text, const FontSpec& font, std::int32_t dpi);
TextPlaces measureTextPlaces(std::wstring_view text, const FontSpec& font, std::int32_t dpi);
void textSettingsChanged();

} // namespace render
} // namespace vela
