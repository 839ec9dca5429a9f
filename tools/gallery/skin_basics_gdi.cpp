// Title bar, buttons, texts, check boxes, chips and progress bars.
#include "tools/gallery/skin_parts_gdi.h"

#include "vela/render/paint/paint.h"

#include <algorithm>
#include <string>

namespace gallery {

using vela::ButtonStyle;
using vela::Rect;
using vela::SurfaceStyle;
using vela::TextAlign;
using vela::TextTone;
using vela::VisualState;

namespace {

constexpr std::wstring_view kStateNames[] = {L"normal", L"hot", L"pressed", L"disabled", L"active"};

struct BoxState {
    std::wstring_view name;
    SurfaceStyle vela::CheckBoxStyle::*box;
    bool checked;
};
constexpr BoxState kBoxStates[] = {
    {L"normal", &vela::CheckBoxStyle::boxUnchecked, false},
    {L"hot", &vela::CheckBoxStyle::boxUncheckedHot, false},
    {L"pressed", &vela::CheckBoxStyle::boxUncheckedPressed, false},
    {L"disabled", &vela::CheckBoxStyle::boxUncheckedDisabled, false},
    {L"normal", &vela::CheckBoxStyle::boxChecked, true},
    {L"hot", &vela::CheckBoxStyle::boxCheckedHot, true},
    {L"pressed", &vela::CheckBoxStyle::boxCheckedPressed, true},
    {L"disabled", &vela::CheckBoxStyle::boxCheckedDisabled, true},
};

TextTone toneOf(VisualState state) noexcept
{
    return state == VisualState::Disabled ? TextTone::Disabled : TextTone::Enabled;
}

} // namespace

void SkinPage::surface(const Rect& rect, const SurfaceStyle& style) const
{
    vela::paintSurface(sheet.dc(), rect, style);
}

void SkinPage::badge(const Rect& rect, const SurfaceStyle& style) const
{
    vela::paintControlSurface(sheet.dc(), rect, style);
}

void SkinPage::text(const Rect& rect, std::wstring_view line, const vela::FontSpec& font,
                    vela::TextLook look) const
{
    vela::drawText(sheet.dc(), rect, line, font, kDpi, look);
}

void SkinPage::button(const Rect& rect, const ButtonStyle& style, VisualState state,
                      std::wstring_view caption) const
{
    surface(rect, style.surface[state]);
    const std::int32_t padding = std::clamp(rect.height / 8, 2, 6);
    text(inset(rect, padding, 0), caption, style.text[state],
         {.tone = toneOf(state), .align = TextAlign::Center});
}

void SkinPage::arrow(const Rect& rect, vela::Color color, bool up) const
{
    const std::int32_t side = std::min({rect.width, rect.height, 12});
    vela::paintIcon(sheet.dc(), up ? vela::Icon::ChevronUp : vela::Icon::ChevronDown,
                    centered(rect, {side, side}), kDpi, color);
}

std::int32_t drawTitleBar(const SkinPage& page, Rect bar, std::wstring_view title)
{
    struct CaptionButton {
        vela::Icon icon;
        VisualState state;
    };
    constexpr CaptionButton kButtons[] = {{vela::Icon::Close, VisualState::Normal},
                                          {vela::Icon::Maximize, VisualState::Hot},
                                          {vela::Icon::Minimize, VisualState::Pressed},
                                          {vela::Icon::ResetSize, VisualState::Disabled}};
    const auto& style = page.styles.find<vela::ChromeTitleBarStyle>(vela::kDefaultVariant);
    bar.height = style.buttonTop + style.buttonHeight + 4;
    page.surface(bar, style.surface);
    page.text({bar.x + style.titleLeft, bar.y, bar.width / 2, bar.height}, title, style.titleText);
    std::int32_t right = bar.x + bar.width - style.rightMargin;
    for (const CaptionButton& button : kButtons) {
        const Rect place{right - style.buttonWidth, bar.y + style.buttonTop, style.buttonWidth,
                         style.buttonHeight};
        page.surface(place, style.titleButton.surface[button.state]);
        const vela::FontSpec& font = style.titleButton.text[button.state];
        const std::int32_t side = vela::captionIconSize(kDpi);
        vela::paintIcon(page.sheet.dc(), button.icon, centered(place, {side, side}), kDpi,
                        button.state == VisualState::Disabled ? font.disabledColor : font.color);
        right -= style.buttonWidth + style.buttonGap;
    }
    return bar.y + bar.height;
}

std::int32_t drawButtons(const SkinPage& page, vela::Point place)
{
    constexpr vela::Size kButton{104, 30};
    constexpr std::int32_t kLabel = 96;
    for (int state = 0; state < vela::kVisualStateCount; ++state)
        page.sheet.caption({place.x + kLabel + state * (kButton.width + 8), place.y, kButton.width, 16},
                           kStateNames[state], TextAlign::Center);
    std::int32_t top = place.y + 20;
    for (const auto& variant : page.styles.table<ButtonStyle>()) {
        page.sheet.caption({place.x, top, kLabel, kButton.height}, variant.name);
        for (int state = 0; state < vela::kVisualStateCount; ++state)
            page.button({place.x + kLabel + state * (kButton.width + 8), top, kButton.width, kButton.height},
                        variant.record, static_cast<VisualState>(state), L"Instalovat");
        top += kButton.height + 8;
    }
    for (const auto& variant : page.styles.table<vela::BitmapButtonStyle>()) {
        const Rect rect{place.x + kLabel, top, kButton.width, kButton.height};
        page.sheet.caption({place.x, top, kLabel, kButton.height}, L"image, " + variant.name);
        page.surface(rect, variant.record.image);
        page.text(rect, L"Obrázek", variant.record.text, {.align = TextAlign::Center});
        top += kButton.height + 8;
    }
    return top;
}

std::int32_t drawTexts(const SkinPage& page, vela::Point place)
{
    for (const auto& variant : page.styles.table<vela::TextStyle>()) {
        const std::int32_t height = vela::lineHeight(variant.record, kDpi) + 4;
        page.sheet.caption({place.x, place.y, 70, height}, variant.name);
        page.text({place.x + 74, place.y, 330, height}, L"Příliš žluťoučký kůň úpěl 0123", variant.record);
        page.text({place.x + 410, place.y, 160, height}, L"nedostupné", variant.record,
                  {.tone = TextTone::Disabled});
        place.y += height + 2;
    }
    return place.y + 8;
}

std::int32_t drawCheckBoxes(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::CheckBoxStyle>(vela::kDefaultVariant);
    constexpr vela::Size kCell{140, 28};
    for (int i = 0; i < 8; ++i) {
        const BoxState& state = kBoxStates[i];
        const Rect cell{place.x + i % 4 * kCell.width, place.y + i / 4 * kCell.height, kCell.width,
                        kCell.height};
        const Rect box{cell.x, cell.y + (cell.height - style.boxSize) / 2, style.boxSize, style.boxSize};
        const bool disabled = i % 4 == 3;
        page.surface(box, style.*state.box);
        if (state.checked)
            vela::paintIcon(page.sheet.dc(), vela::Icon::Check,
                            vela::iconBoxOn((style.*state.box).shape, box), kDpi, style.checkColor);
        page.text({cell.x + style.textLeft, cell.y, cell.width - style.textLeft, cell.height}, state.name,
                  style.text, {.tone = disabled ? TextTone::Disabled : TextTone::Enabled});
    }
    return place.y + 2 * kCell.height + 8;
}

std::int32_t drawChips(const SkinPage& page, vela::Point place)
{
    for (const auto& variant : page.styles.table<vela::StatusChipStyle>()) {
        const vela::StatusChipStyle& style = variant.record;
        const Rect chip{place.x, place.y, 128, 26};
        page.surface(chip, style.surface);
        page.badge({chip.x + style.badgeLeft, chip.y + (chip.height - style.badgeSize) / 2, style.badgeSize,
                    style.badgeSize},
                   style.badge);
        page.text({chip.x + style.textLeft, chip.y, chip.width - style.textLeft - 8, chip.height},
                  variant.name, style.text);
        place.x += chip.width + 12;
    }
    return place.y + 26 + 14;
}

std::int32_t drawProgressBars(const SkinPage& page, vela::Point place)
{
    const auto& style = page.styles.find<vela::ProgressBarStyle>(vela::kDefaultVariant);
    std::int32_t left = place.x;
    for (const std::int32_t value : {4, 42, 100}) {
        const Rect frame{left, place.y, 176, 28};
        page.surface(frame, style.frame);
        Rect track = inset(frame, style.insetX, style.insetY);
        track.width -= style.labelWidth;
        page.surface(track, style.track);
        vela::paintProgressFill(page.sheet.dc(), track, style.fill,
                                static_cast<float>(track.width * value) / 100.0F);
        page.text({track.x + track.width, frame.y, style.labelWidth, frame.height},
                  std::to_wstring(value) + L"%", style.labelText, {.align = TextAlign::Center});
        left += frame.width + 14;
    }
    return place.y + 28 + 14;
}

} // namespace gallery
