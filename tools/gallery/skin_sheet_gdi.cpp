// Cards, tooltips, popups, and the sheet that puts a whole skin together.
#include "tools/gallery/gallery_gdi.h"
#include "tools/gallery/skin_parts_gdi.h"

#include "vela/render/paint/paint.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>

namespace gallery {

using vela::Rect;
using vela::TextAlign;
using vela::TextWrap;
using vela::VisualState;

std::int32_t drawCards(const SkinPage& page, vela::Point place)
{
    for (const auto& variant : page.styles.table<vela::CardStyle>()) {
        const vela::CardStyle& style = variant.record;
        const Rect card{place.x, place.y, 190, 118};
        page.surface(card, style.surface);
        page.surface({card.x, card.y, card.width, style.headerHeight}, style.header);
        page.text({card.x + style.contentPadding, card.y, card.width - 2 * style.contentPadding,
                   style.headerHeight},
                  L"Karta", style.titleText);
        page.text(inset({card.x, card.y + style.headerHeight, card.width, card.height - style.headerHeight},
                        style.contentPadding, 8),
                  variant.name, style.subtitleText, {.wrap = TextWrap::Words});
        place.x += card.width + 12;
    }
    for (const auto& variant : page.styles.table<vela::PanelStyle>()) {
        const Rect panel{place.x, place.y, 140, 118};
        page.surface(panel, variant.record.surface);
        page.sheet.caption(inset(panel, variant.record.padding, 6), L"panel, " + variant.name,
                           TextAlign::Center);
        place.x += panel.width + 12;
    }
    return place.y + 118 + 14;
}

std::int32_t drawRichText(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::RichTextStyle>(vela::kDefaultVariant);
    const Rect box{place.x, place.y, 330, 92};
    page.surface(box, style.surface);
    const Rect icon{box.x + style.paddingX, box.y + style.paddingY, 24, 24};
    page.badge(icon, style.icon);
    const Rect text{icon.x + 34, box.y + style.paddingY, box.width - style.paddingX * 2 - 34, 44};
    page.text(text, L"Součásti se stáhnou až při prvním spuštění aplikace.", style.text,
              {.wrap = TextWrap::Words});
    page.text({text.x, text.y + 46, text.width, 22}, L"Podrobnosti", style.linkText);
    return box.y + box.height + 14;
}

std::int32_t drawTooltips(const SkinPage& page, vela::Point place)
{
    for (const auto& variant : page.styles.table<vela::TooltipStyle>()) {
        const vela::TooltipStyle& style = variant.record;
        constexpr std::wstring_view kText = L"Složka, do které se aplikace nainstaluje.";
        std::int32_t left = style.paddingX;
        if (style.showIcon)
            left += style.iconSize + style.gap;
        const std::int32_t width = std::min(style.maxWidth, 230);
        const std::int32_t height =
            vela::measureText(kText, style.textStyle, kDpi, width - left - style.paddingX);
        const Rect tip{place.x, place.y, width, height + 2 * style.paddingY};
        page.surface(tip, style.surface);
        if (style.showAccentRail)
            page.surface({tip.x + 3, tip.y + 5, 3, tip.height - 10}, style.accentRail);
        if (style.showIcon)
            page.badge({tip.x + style.paddingX, tip.y + style.paddingY, style.iconSize, style.iconSize},
                       style.icon);
        page.text({tip.x + left, tip.y + style.paddingY, tip.width - left - style.paddingX, height}, kText,
                  style.textStyle, {.wrap = TextWrap::Words});
        place.x += width + 16;
    }
    return place.y + 70;
}

std::int32_t drawPopups(const SkinPage& page, vela::Point place)
{
    for (const auto& variant : page.styles.table<vela::PopupStyle>()) {
        const vela::PopupStyle& style = variant.record;
        const Rect popup{place.x, place.y, 440, style.headerHeight + 100 + style.actionHeight};
        page.surface(popup, style.surface);
        page.surface({popup.x, popup.y, popup.width, style.headerHeight}, style.header);
        const Rect icon{popup.x + style.paddingX, popup.y + (style.headerHeight - style.iconSize) / 2,
                        style.iconSize, style.iconSize};
        page.badge(icon, style.icon);
        vela::paintIcon(page.sheet.dc(), vela::Icon::Info,
                        centered(icon, {style.iconSize / 2, style.iconSize / 2}), kDpi, style.iconText.color);
        page.text({icon.x + icon.width + 14, popup.y, 260, style.headerHeight}, L"Nainstalovano",
                  style.titleText);
        const Rect close{popup.x + popup.width - 40, popup.y + 8, 30, 26};
        page.surface(close, style.closeButton.surface.normal);
        vela::paintIcon(page.sheet.dc(), vela::Icon::Close, centered(close, {10, 10}), kDpi,
                        style.closeButton.text.normal.color);
        page.text(inset({popup.x, popup.y + style.headerHeight, popup.width, 80}, style.paddingX,
                        style.paddingY / 2),
                  L"Tamber je připraven. Po zavření tohoto okna se aplikace otevře.", style.messageText,
                  {.wrap = TextWrap::Words});
        Rect action{popup.x + popup.width - style.paddingX - style.actionWidth,
                    popup.y + popup.height - style.actionHeight - style.paddingY, style.actionWidth,
                    style.actionHeight};
        page.button(action, style.primaryAction, VisualState::Normal, L"Zavřít");
        action.x -= style.actionWidth + style.actionGap;
        page.button(action, style.secondaryAction, VisualState::Normal, L"Otevřít záznam");
        place.x += popup.width + 24;
    }
    return place.y + 230;
}

bool drawSkinSheet(const std::wstring& path, const vela::SkinDefinition& skin)
{
    constexpr vela::Size kSheet{1280, 1640};
    const vela::StyleSheet styles = vela::buildStyleSheet(skin);
    Sheet sheet(kSheet, {skin.theme.shell, skin.theme.text, skin.theme.mutedText});
    const SkinPage page{sheet, styles};
    vela::SurfaceStyle background = styles.find<vela::PanelStyle>(vela::kDefaultVariant).surface;
    background.shape = vela::ShapeKind::Rect; // a sheet has no corners to cut
    page.surface({0, 0, kSheet.width, kSheet.height}, background);
    const std::int32_t top = drawTitleBar(page, {0, 0, kSheet.width, 40}, skin.name) + 16;

    constexpr std::int32_t kLeft = 24;
    constexpr std::int32_t kRight = 700;
    const std::int32_t leftBottom = drawButtons(page, {kLeft, top});
    std::int32_t y = drawTexts(page, {kRight, top});
    for (const auto draw : {drawCheckBoxes, drawChips, drawProgressBars, drawTextInputs, drawSelectBoxes})
        y = draw(page, {kRight, y});

    const std::int32_t middle = std::max(leftBottom, y) + 6;
    const std::int32_t lists =
        std::max({drawListBox(page, {kLeft, middle}), drawScrollBars(page, {kLeft + 250, middle}),
                  drawTable(page, {kLeft + 410, middle}), drawMenu(page, {kLeft + 764, middle})});
    const std::int32_t calendar = drawCalendar(page, {kLeft, lists});
    std::int32_t rows = drawCards(page, {kLeft + 320, lists});
    drawRichText(page, {kLeft + 320, rows});
    drawTooltips(page, {kLeft + 670, rows});
    const std::int32_t bottom = drawPopups(page, {kLeft, std::max(calendar, rows + 110)});
    return sheet.save(path, bottom + 10);
}

} // namespace gallery
