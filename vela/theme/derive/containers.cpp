// Panels, cards, status chips, popups and tooltips.
#include "vela/theme/derive/buttons.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/builders.h"

namespace vela::derive {
namespace {

constexpr TypeStep kPopupTitle = {.points = 8, .weight = 200};
constexpr TypeStep kCardTitle = {.points = 2, .weight = 200};
constexpr TypeStep kBadgeText = {.points = 4, .weight = 300};
constexpr std::uint8_t kGlassOpacity = 214;

void deriveCard(const Context& context, Color fill, CardStyle& style)
{
    style.shape = context.mode.panelShape;
    style.headerShape = context.mode.panelShape;
    style.surface = containerSurface(context, fill, context.hairline, style.shape);
    style.header = bareSurface(context, style.headerShape);
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    style.titleText = textOn(context, backdrop.tones, {context.strongText, context.text}, kCardTitle);
    style.subtitleText = textOn(context, backdrop.tones, {context.mutedText, context.text});
    style.headerHeight = 48;
    style.contentPadding = 16;
}

void deriveRaisedCard(const Context& context, CardStyle& style)
{
    deriveCard(context, context.containerFills.raisedCard, style);
    const ElevationTraits& raised = context.mode.traits(Elevation::Raised);
    style.surface.showShadow = raised.shadow > 0;
    style.surface.shadowOpacity = raised.shadow;
}

// Figures at a glance: a deeper fill, and a title that leaves the stage to them.
void deriveDashboardCard(const Context& context, CardStyle& style)
{
    deriveCard(context, context.containerFills.dashboard, style);
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    style.titleText = textOn(context, backdrop.tones, {context.text}, kLabel);
    style.subtitleText = textOn(context, backdrop.tones, {context.mutedText, context.text}, kSmall);
    style.headerHeight = 40;
}

void deriveChip(const Context& context, Intent intent, StatusChipStyle& style)
{
    const bool plain = intent == Intent::Neutral;
    const Color lead = context.solidColor(plain ? Intent::Accent : intent);
    const Color tint =
        plain ? context.overlay(context.backdrop, 0.05F) : mixOklab(context.backdrop.fill, lead, 0.14F);
    style.shape = ShapeKind::Pill;
    style.badgeShape = ShapeKind::Pill;
    const Color fill = context.stateFill(tint, Elevation::Flat, {});
    style.surface = surfaceOf(context, {.fill = fill, .border = mixOklab(fill, lead, 0.4F)}, style.shape);
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    style.text = textOn(context, backdrop.tones, {plain ? context.text : context.textColor(intent)}, kSmall);
    style.badge =
        flatSurface(context, context.markFill(lead, backdrop.tones, Elevation::Flat), style.badgeShape);
}

void derivePopup(const Context& context, Color frame, Intent badge, PopupStyle& style)
{
    const ShapeKind button = context.mode.controlShape;
    style.shape = context.mode.panelShape;
    style.headerShape = context.mode.panelShape;
    style.iconShape = ShapeKind::Pill;
    style.surface = containerSurface(context, context.containerFills.panel, frame, style.shape);
    style.header = bareSurface(context, style.headerShape);
    style.footer = containerSurface(context, context.containerFills.glass, context.hairline, ShapeKind::Rect);
    style.footer.showOutline = false;
    style.icon = badgeSurface(context, badge, context.backdrop, style.iconShape);
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    const Color text = context.strongestText(backdropOf(style.icon, backdrop).tones);
    style.iconText = textOf(context, text, text, kBadgeText);
    style.titleText = textOn(context, backdrop.tones, {context.strongText, context.text}, kPopupTitle);
    style.messageText = readingTextOn(context, backdrop.tones, {context.text});
    deriveButton(context, {Intent::Neutral, Emphasis::Quiet}, backdrop, button, style.closeButton);
    const Backdrop actions = backdropOf(style.footer, backdrop);
    deriveButton(context, {Intent::Accent, Emphasis::Solid, kLabel}, actions, button, style.primaryAction);
    deriveButton(context, {}, actions, button, style.secondaryAction);
    style.surface.shadowOpacity = context.mode.traits(Elevation::Raised).shadow;
    style.showShadow = style.surface.shadowOpacity > 0;
    // With the title bar of the mode, messages begin at one height in all windows.
    style.headerHeight = context.mode.flushCaptionButtons ? 80 : 72;
    style.iconSize = 32;
    style.paddingX = 20;
    style.paddingY = 20;
    style.actionWidth = 128;
    style.actionHeight = 34;
    style.actionGap = 8;
}

void deriveTooltip(const Context& context, TooltipStyle& style)
{
    const Color fill = context.containerFill(towards(context.backdrop.fill, context.control.normal, 0.05F));
    style.shape = ShapeKind::RoundedRect;
    style.iconShape = ShapeKind::Pill;
    style.railShape = ShapeKind::Pill;
    style.surface = containerSurface(context, fill, mixOklab(fill, context.edge, 0.6F), style.shape);
    style.surface.useNoise = false;
    style.surface.shadowOpacity = context.mode.traits(Elevation::Raised).shadow;
    style.showShadow = style.surface.shadowOpacity > 0;
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    style.textStyle = textOn(context, backdrop.tones, {context.text});
    style.icon = badgeSurface(context, Intent::Accent, backdrop, style.iconShape);
    const Color text = context.strongestText(backdropOf(style.icon, backdrop).tones);
    style.iconText = textOf(context, text, text, {.points = -1, .weight = 300});
    style.accentRail = flatSurface(
        context, context.markFill(context.theme.accent, backdrop.tones, Elevation::Flat), style.railShape);
}

} // namespace

void build(const Context& context, VariantTable<PanelStyle>& panels)
{
    const auto panel = [&](std::wstring_view variant, Color fill, Color border) -> PanelStyle& {
        PanelStyle& style = panels.ensure(variant);
        style.shape = context.mode.panelShape;
        style.surface = containerSurface(context, fill, border, style.shape);
        style.padding = 16;
        return style;
    };
    panel(L"default", context.containerFills.panel, context.hairline);
    SurfaceStyle& glass =
        panel(L"glass", context.containerFills.glass, mixOklab(context.hairline, context.edge, 0.4F)).surface;
    glass.opacity = glass.useGradient ? kGlassOpacity : glass.opacity;
}

void build(const Context& context, VariantTable<CardStyle>& cards)
{
    deriveCard(context, context.containerFills.card, cards.ensure(L"default"));
    deriveRaisedCard(context, cards.ensure(L"raised"));
    deriveDashboardCard(context, cards.ensure(L"dashboard"));
}

void build(const Context& context, VariantTable<StatusChipStyle>& chips)
{
    deriveChip(context, Intent::Neutral, chips.ensure(L"default"));
    deriveChip(context, Intent::Success, chips.ensure(L"success"));
    deriveChip(context, Intent::Warning, chips.ensure(L"warning"));
    deriveChip(context, Intent::Danger, chips.ensure(L"danger"));
}

void build(const Context& context, VariantTable<PopupStyle>& popups)
{
    const Color frame = context.theme.frame;
    derivePopup(context, frame, Intent::Accent, popups.ensure(L"default"));
    // A failure is told, not shouted: the badge is red and the frame leans to red; what Enter presses looks
    // as everywhere.
    derivePopup(context, mixOklab(frame, context.solidColor(Intent::Danger), 0.6F), Intent::Danger,
                popups.ensure(L"danger"));
}

void build(const Context& context, VariantTable<TooltipStyle>& tooltips)
{
    deriveTooltip(context, tooltips.ensure(L"default"));
    TooltipStyle& help = tooltips.ensure(L"designed-help");
    deriveTooltip(context, help);
    help.showAccentRail = true;
    help.showIcon = true;
    help.iconSize = 20;
    help.paddingX = 14;
    help.paddingY = 10;
    help.maxWidth = 380;
    help.gap = 10;
}

} // namespace vela::derive
