// Text inputs, select boxes, scroll bars, tabs, list boxes, tables, menus and calendars.
#include "tools/gallery/skin_parts_gdi.h"

#include "vela/render/paint/paint.h"

#include <string>

namespace gallery {

using vela::Rect;
using vela::SurfaceStyle;
using vela::TextAlign;
using vela::TextTone;
using vela::VisualState;

namespace {

constexpr std::wstring_view kNames[] = {L"Tamber.exe", L"Modely", L"Nástroje", L"Záznamy", L"Nastavení"};

void drawScrollBar(const SkinPage& page, const vela::ScrollBarStyle& style, const Rect& bar,
                   VisualState state)
{
    const Rect track = centered(bar, {style.trackThickness, bar.height});
    page.badge(track, style.track);
    std::int32_t top = track.y + style.trackPadding;
    if (style.showButtons) {
        const Rect up{track.x, track.y, track.width, style.buttonExtent};
        const Rect down{track.x, track.y + track.height - style.buttonExtent, track.width,
                        style.buttonExtent};
        page.surface(up, style.decrementButton[state]);
        page.surface(down, style.incrementButton[state]);
        page.arrow(up, style.arrow, true);
        page.arrow(down, style.arrow);
        top += style.buttonExtent;
    }
    const Rect thumb{bar.x, top, bar.width, bar.height / 3};
    page.badge(centered(thumb, {style.thumbThickness, thumb.height}), style.thumb[state]);
}

} // namespace

std::int32_t drawTextInputs(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::TextInputStyle>(vela::kDefaultVariant);
    struct State {
        std::wstring_view text;
        const SurfaceStyle& surface;
        const vela::FontSpec& font;
        bool disabled;
    };
    const State states[] = {{L"C:\\Program Files\\Tamber", style.surface, style.text, false},
                            {L"hot", style.hotSurface, style.text, false},
                            {L"pressed", style.pressedSurface, style.text, false},
                            {L"focused", style.focusedSurface, style.text, false},
                            {L"disabled", style.disabledSurface, style.text, true},
                            {L"Zadejte složku", style.surface, style.placeholderText, false}};
    for (int i = 0; i < 6; ++i) {
        const State& state = states[i];
        const Rect box{place.x + i % 3 * 190, place.y + i / 3 * 42, 178, 34};
        page.surface(box, state.surface);
        Rect text = inset(box, style.paddingX, 0);
        if (i == 3) { // a selection and the caret behind it
            const std::int32_t width = vela::measureTextWidth(L"focu", style.text, kDpi);
            const std::int32_t height = vela::lineHeight(style.text, kDpi);
            page.surface(centered({text.x, text.y, width, text.height}, {width, height}), style.selection);
            vela::fillShape(page.sheet.dc(), {text.x + width, text.y + (text.height - height) / 2, 1, height},
                            vela::ShapeKind::Rect, style.caretColor);
        }
        page.text(text, state.text, state.font,
                  {.tone = state.disabled ? TextTone::Disabled : TextTone::Enabled});
    }
    const Rect chip{place.x, place.y + 84, 150, style.attachmentHeight};
    page.surface(chip, style.attachmentSurface);
    page.surface(inset({chip.x, chip.y, chip.height, chip.height}, 4, 4), style.attachmentImageSurface);
    page.text({chip.x + chip.height + 4, chip.y, 90, chip.height}, L"priloha.png", style.attachmentText);
    const Rect remove{chip.x + chip.width - style.attachmentRemoveExtent - 4,
                      chip.y + (chip.height - style.attachmentRemoveExtent) / 2, style.attachmentRemoveExtent,
                      style.attachmentRemoveExtent};
    page.surface(remove, style.attachmentRemoveSurface);
    vela::paintIcon(page.sheet.dc(), vela::Icon::Close, inset(remove, 4, 4), kDpi, style.attachmentIconColor);

    const auto& selectable = page.styles.find<vela::SelectableTextStyle>(vela::kDefaultVariant);
    const Rect log{place.x + 190, place.y + 84, 368, 26};
    page.surface(log, selectable.surface);
    const std::int32_t width = vela::measureTextWidth(L"TamberSetup-4711", selectable.text, kDpi);
    page.surface({log.x + selectable.paddingX, log.y + 3, width, log.height - 6}, selectable.selection);
    page.text(inset(log, selectable.paddingX, 0), L"TamberSetup-4711-install.log, vybíratelný text",
              selectable.text);
    return place.y + 84 + 40;
}

std::int32_t drawSelectBoxes(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::SelectBoxStyle>(vela::kDefaultVariant);
    struct State {
        std::wstring_view name;
        const SurfaceStyle& surface;
        const SurfaceStyle& arrow;
    };
    const State states[] = {{L"normal", style.surface, style.arrowSurface},
                            {L"hot", style.hotSurface, style.arrowHotSurface},
                            {L"pressed", style.pressedSurface, style.arrowPressedSurface},
                            {L"disabled", style.disabledSurface, style.arrowDisabledSurface}};
    std::int32_t left = place.x;
    for (const State& state : states) {
        const Rect box{left, place.y, 132, 32};
        page.surface(box, state.surface);
        const Rect arrow{box.x + box.width - style.arrowWidth, box.y, style.arrowWidth, box.height};
        page.surface(inset(arrow, 2, 2), state.arrow);
        page.arrow(arrow, style.arrowColor);
        const bool disabled = state.name == L"disabled";
        page.text({box.x + 10, box.y, box.width - style.arrowWidth - 12, box.height}, state.name, style.text,
                  {.tone = disabled ? TextTone::Disabled : TextTone::Enabled});
        left += box.width + 12;
    }
    const Rect list{place.x, place.y + 32 + style.dropdownGap, 132,
                    2 * style.dropdownPadding + 3 * style.itemHeight};
    page.surface(list, style.dropdownSurface);
    for (int i = 0; i < 3; ++i) {
        const Rect item{list.x + style.dropdownPadding, list.y + style.dropdownPadding + i * style.itemHeight,
                        list.width - 2 * style.dropdownPadding, style.itemHeight};
        if (i > 0)
            page.surface(item, i == 1 ? style.optionSelectedSurface : style.optionHotSurface);
        page.text(inset(item, style.dropdownItemPaddingX, 0), kNames[i], style.text);
    }
    drawTabs(page, {place.x + 156, place.y + 46});
    return list.y + list.height + 14;
}

std::int32_t drawTabs(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::TabsStyle>(vela::kDefaultVariant);
    constexpr std::pair<std::wstring_view, VisualState> kTabs[] = {{L"Obecné", VisualState::Active},
                                                                   {L"Modely", VisualState::Hot},
                                                                   {L"Vzhled", VisualState::Normal},
                                                                   {L"Zámek", VisualState::Disabled}};
    for (const auto& [name, state] : kTabs) {
        page.button({place.x, place.y, 92, style.verticalItemHeight - 4}, style.itemButton, state, name);
        place.x += 98;
    }
    return place.y + style.verticalItemHeight + 10;
}

std::int32_t drawScrollBars(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::ScrollBarStyle>(vela::kDefaultVariant);
    for (int state = 0; state < vela::kVisualStateCount; ++state)
        drawScrollBar(page, style, {place.x + state * 26, place.y, 20, 170}, static_cast<VisualState>(state));
    return place.y + 184;
}

std::int32_t drawListBox(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::ListBoxStyle>(vela::kDefaultVariant);
    const SurfaceStyle* const rows[] = {&style.row, &style.rowHot, &style.selectedRow, &style.selectedRowHot,
                                        &style.rowPressed};
    const Rect box{place.x, place.y, 230, 2 * style.contentInsetY + 5 * style.rowHeight};
    page.surface(box, style.surface);
    const std::int32_t rowWidth =
        box.width - 2 * style.contentInsetX - style.scrollBarWidth - style.scrollRailGap;
    for (int i = 0; i < 5; ++i) {
        const Rect row{box.x + style.contentInsetX, box.y + style.contentInsetY + i * style.rowHeight,
                       rowWidth, style.rowHeight};
        const bool selected = i == 2 || i == 3;
        page.surface(row, *rows[i]);
        if (selected)
            page.surface(
                {row.x, row.y + style.linePadding, style.railWidth, row.height - 2 * style.linePadding},
                style.selectedRail);
        page.text(inset(row, style.itemPaddingX, 0), kNames[i], selected ? style.selectedText : style.text);
    }
    drawScrollBar(page, style.scrollBar,
                  {box.x + box.width - style.scrollBarWidth - style.contentInsetX,
                   box.y + style.contentInsetY, style.scrollBarWidth, box.height - 2 * style.contentInsetY},
                  VisualState::Normal);
    return box.y + box.height + 14;
}

std::int32_t drawTable(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::TableListStyle>(vela::kDefaultVariant);
    struct Row {
        std::wstring_view name;
        std::wstring_view kind;
        const vela::Color* severity;
    };
    const Row rows[] = {{L"Instalace", L"hotovo", nullptr},
                        {L"Služba", L"vybráno", nullptr},
                        {L"Ovladač", L"vážné", &style.highSeverityFill},
                        {L"Cesta", L"střední", &style.mediumSeverityFill},
                        {L"Zástupce", L"lehké", &style.lowSeverityFill}};
    const Rect box{place.x, place.y, 330, style.headerHeight + 5 * style.rowHeight + 2 * style.contentInsetY};
    page.surface(box, style.surface);
    const Rect header{box.x, box.y, box.width, style.headerHeight};
    page.surface(header, style.header);
    page.text({header.x + 10, header.y, 140, header.height}, L"Název", style.headerText);
    page.text({header.x + 190, header.y, 110, header.height}, L"Stav", style.headerText);
    page.arrow({header.x + 150, header.y, style.sortIndicatorWidth, header.height}, style.sortIndicatorHot,
               true);
    vela::fillShape(page.sheet.dc(), {header.x + 180, header.y + 8, 1, header.height - 16},
                    vela::ShapeKind::Rect, style.resizeGrip);
    for (int i = 0; i < 5; ++i) {
        const Rect row{box.x + 4, box.y + style.headerHeight + style.contentInsetY + i * style.rowHeight,
                       box.width - 8, style.rowHeight};
        page.surface(row, i == 1 ? style.selectedRow : style.row);
        if (i == 1)
            page.surface(
                {row.x, row.y + style.linePadding, style.railWidth, row.height - 2 * style.linePadding},
                style.selectedRail);
        const vela::FontSpec& font = i == 1   ? style.selectedText
                                     : i == 2 ? style.highSeverityText
                                              : style.rowText;
        if (rows[i].severity)
            paintBadge(page.sheet.dc(), inset({row.x + 178, row.y, 92, row.height}, 0, 4),
                       vela::ShapeKind::RoundedRect, *rows[i].severity);
        page.text({row.x + 10, row.y, 150, row.height}, rows[i].name, font);
        page.text({row.x + 186, row.y, 84, row.height}, rows[i].kind, font);
        vela::fillShape(page.sheet.dc(), {row.x, row.y + row.height - 1, row.width, 1}, vela::ShapeKind::Rect,
                        style.separator);
    }
    return box.y + box.height + 14;
}

std::int32_t drawMenu(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::MenuBarStyle>(vela::kDefaultVariant);
    const Rect bar{place.x, place.y, 330, style.height};
    if (style.drawSurface)
        page.surface(bar, style.surface);
    const std::pair<std::wstring_view, const SurfaceStyle*> items[] = {
        {L"Soubor", &style.itemActiveSurface},
        {L"Úpravy", &style.itemHotSurface},
        {L"Zobrazit", &style.itemPressedSurface},
        {L"Pomoc", nullptr}};
    std::int32_t left = bar.x + 2;
    for (const auto& [name, surface] : items) {
        const Rect item{left, bar.y + 2, 74, bar.height - 4};
        if (surface)
            page.surface(item, *surface);
        page.text(item, name, style.itemText, {.align = TextAlign::Center});
        left += item.width + style.itemGap;
    }
    const Rect popup{place.x, bar.y + bar.height + style.popupGap, 250,
                     2 * style.popupPadding + 3 * style.popupItemHeight + style.separatorHeight};
    page.surface(popup, style.popupSurface);
    constexpr std::wstring_view kItems[] = {L"Otevřít", L"Automaticky", L"Další"};
    constexpr std::wstring_view kShortcuts[] = {L"Ctrl+O", L"", L""};
    std::int32_t top = popup.y + style.popupPadding;
    for (int i = 0; i < 3; ++i) {
        const Rect item{popup.x + style.popupPadding, top, popup.width - 2 * style.popupPadding,
                        style.popupItemHeight};
        if (i < 2)
            page.surface(item, i == 0 ? style.popupItemHotSurface : style.popupItemPressedSurface);
        if (i == 1)
            vela::paintIcon(page.sheet.dc(), vela::Icon::Check,
                            centered({item.x, item.y, style.checkColumnWidth, item.height}, {12, 12}), kDpi,
                            style.check);
        page.text({item.x + style.checkColumnWidth, item.y, 120, item.height}, kItems[i], style.itemText);
        page.text({item.x + item.width - style.shortcutColumnWidth, item.y, style.shortcutColumnWidth - 10,
                   item.height},
                  kShortcuts[i], style.shortcutText, {.align = TextAlign::Right});
        if (i == 2)
            vela::paintIcon(page.sheet.dc(), vela::Icon::ChevronRight,
                            centered({item.x + item.width - style.submenuArrowWidth, item.y,
                                      style.submenuArrowWidth, item.height},
                                     {10, 10}),
                            kDpi, style.arrow);
        top += style.popupItemHeight;
        if (i == 1) {
            vela::fillShape(page.sheet.dc(),
                            {item.x + 6, top + style.separatorHeight / 2, item.width - 12, 1},
                            vela::ShapeKind::Rect, style.separator);
            top += style.separatorHeight;
        }
    }
    return popup.y + popup.height + 14;
}

std::int32_t drawCalendar(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::DateInputStyle>(vela::kDefaultVariant);
    const Rect field{place.x, place.y, 160, 32};
    page.surface(field, style.surface);
    page.surface(
        inset({field.x + field.width - style.arrowWidth, field.y, style.arrowWidth, field.height}, 2, 2),
        style.arrowSurface);
    page.arrow({field.x + field.width - style.arrowWidth, field.y, style.arrowWidth, field.height},
               style.arrowColor);
    page.text({field.x + 10, field.y, 110, field.height}, L"21. 11. 2026", style.text);

    const Rect popup{place.x, field.y + field.height + style.popupGap, style.popupWidth,
                     2 * style.popupPadding + style.headerHeight + style.weekdayHeight +
                         3 * style.dayCellHeight};
    page.surface(popup, style.popupSurface);
    const Rect inside = inset(popup, style.popupPadding, style.popupPadding);
    const Rect header{inside.x, inside.y, inside.width, style.headerHeight};
    page.surface(header, style.headerSurface);
    page.text(header, L"listopad 2026", style.headerText, {.align = TextAlign::Center});
    for (const auto& [icon, x] :
         {std::pair{vela::Icon::ChevronLeft, header.x},
          std::pair{vela::Icon::ChevronRight, header.x + header.width - style.navButtonExtent}})
        vela::paintIcon(page.sheet.dc(), icon,
                        centered({x, header.y, style.navButtonExtent, header.height}, {12, 12}), kDpi,
                        style.arrowColor);
    constexpr std::wstring_view kDays[] = {L"Po", L"Út", L"St", L"Čt", L"Pá", L"So", L"Ne"};
    const std::int32_t cell = inside.width / 7;
    for (int day = 0; day < 7; ++day)
        page.text({inside.x + day * cell, header.y + header.height, cell, style.weekdayHeight}, kDays[day],
                  style.weekdayText, {.align = TextAlign::Center});
    const std::pair<int, const SurfaceStyle*> marked[] = {{4, &style.dayHotSurface},
                                                          {9, &style.todaySurface},
                                                          {12, &style.daySelectedSurface},
                                                          {15, &style.dayPressedSurface}};
    for (int day = 0; day < 21; ++day) {
        const Rect box{inside.x + day % 7 * cell,
                       header.y + header.height + style.weekdayHeight + day / 7 * style.dayCellHeight, cell,
                       style.dayCellHeight};
        for (const auto& [number, surface] : marked) {
            if (number == day)
                page.surface(centered(box, {style.dayCellHeight - 2, style.dayCellHeight - 2}), *surface);
        }
        const vela::FontSpec& font = day < 2        ? style.mutedDayText
                                     : day % 7 == 5 ? style.saturdayText
                                     : day % 7 == 6 ? style.sundayText
                                                    : style.dayText;
        page.text(box, std::to_wstring(day < 2 ? day + 30 : day - 1), font, {.align = TextAlign::Center});
    }
    return popup.y + popup.height + 14;
}

} // namespace gallery
