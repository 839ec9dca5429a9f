// The pieces of a skin's sheet: each draws one group of control kinds as the toolkit's controls would, with
// all their variants and states, and returns where the next group may begin.
#pragma once

#include "tools/gallery/sheet_gdi.h"
#include "vela/theme/records/style_sheet.h"

#include <string_view>

namespace gallery {

struct SkinPage {
    Sheet& sheet;
    const vela::StyleSheet& styles;

    void surface(const vela::Rect& rect, const vela::SurfaceStyle& style) const;
    void badge(const vela::Rect& rect, const vela::SurfaceStyle& style) const;
    void text(const vela::Rect& rect, std::wstring_view text, const vela::FontSpec& font,
              vela::TextLook look = {}) const;
    void button(const vela::Rect& rect, const vela::ButtonStyle& style, vela::VisualState state,
                std::wstring_view caption) const;
    // The arrow of a box that opens, or of a scroll bar.
    void arrow(const vela::Rect& rect, vela::Color color, bool up = false) const;
};

// The place is where the group's top left corner lies; the result is the row below it.
std::int32_t drawTitleBar(const SkinPage& page, vela::Rect bar, std::wstring_view title);
std::int32_t drawButtons(const SkinPage& page, vela::Point place);
std::int32_t drawTexts(const SkinPage& page, vela::Point place);
std::int32_t drawCheckBoxes(const SkinPage& page, vela::Point place);
std::int32_t drawChips(const SkinPage& page, vela::Point place);
std::int32_t drawProgressBars(const SkinPage& page, vela::Point place);
std::int32_t drawTextInputs(const SkinPage& page, vela::Point place);
std::int32_t drawSelectBoxes(const SkinPage& page, vela::Point place);
std::int32_t drawScrollBars(const SkinPage& page, vela::Point place);
std::int32_t drawTabs(const SkinPage& page, vela::Point place);
std::int32_t drawListBox(const SkinPage& page, vela::Point place);
std::int32_t drawTable(const SkinPage& page, vela::Point place);
std::int32_t drawMenu(const SkinPage& page, vela::Point place);
std::int32_t drawCalendar(const SkinPage& page, vela::Point place);
std::int32_t drawCards(const SkinPage& page, vela::Point place);
std::int32_t drawRichText(const SkinPage& page, vela::Point place);
std::int32_t drawTooltips(const SkinPage& page, vela::Point place);
std::int32_t drawPopups(const SkinPage& page, vela::Point place);

} // namespace gallery
