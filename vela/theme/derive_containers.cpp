#include "vela/theme/derive_buttons.h"

#include "vela/theme/derive_builders.h"
#include "vela/theme/oklab.h"

namespace vela {
namespace {

constexpr Type kPopupTitle = {.points = 6, .weight = 200};
constexpr Type kCardTitle = {.points = 2, .weight = 200};
constexpr Type kGlyph = {.points = 4, .weight = 300};
constexpr std::uint8_t kGlassOpacity = 214;

CardStyle cardOf(const DeriveContext& context, Color fill, Color border)
{
    CardStyle style;
    style.shape = context.look.panelShape;
    style.headerShape = context.look.panelShape;
    style.surface = groundOf(context, fill, border, style.shape);
    style.header = bareSurface(context, style.headerShape);
    const Bed bed = bedOn(style.surface, context.ground);
    style.titleText = textOn(context, bed.tones, {context.strongText, context.text}, kCardTitle);
    style.subtitleText = textOn(context, bed.tones, {context.mutedText, context.text});
    style.headerHeight = 48;
    style.contentPadding = 16;
    return style;
}

CardStyle raisedCard(const DeriveContext& context)
{
    CardStyle style = cardOf(context, context.grounds.raisedCard, context.hairline);
    const FormLook& raised = context.look.form(Form::Raised);
    style.surface.showShadow = raised.shadow > 0;
    style.surface.shadowOpacity = raised.shadow;
    return style;
}

// Figures at a glance: a header strip sets the title apart from them.
CardStyle dashboardCard(const DeriveContext& context)
{
    CardStyle style = cardOf(context, context.grounds.dashboard, context.hairline);
    const Color strip =
        context.fillUnder(context.text, context.grounds.dashboard,
                          towards(context.grounds.dashboard, context.header.fill, 0.06F), Form::Plate, {});
    style.header = plateOf(context, strip, style.headerShape);
    const Bed bed = bedOn(style.header, context.ground);
    style.titleText = textOn(context, bed.tones, {context.text}, kLabel);
    style.subtitleText = textOn(context, bed.tones, {context.mutedText, context.text}, kSmall);
    style.headerHeight = 40;
    return style;
}

StatusChipStyle chipOf(const DeriveContext& context, Hue hue)
{
    const bool plain = hue == Hue::Neutral;
    const Color lead = context.solid(plain ? Hue::Accent : hue);
    const Color tint = plain ? context.veil(context.ground, 0.05F) : mixed(context.ground.fill, lead, 0.14F);
    StatusChipStyle style;
    style.shape = ShapeKind::Pill;
    style.badgeShape = ShapeKind::Pill;
    const Color fill = context.stateFill(tint, Form::Plate, {});
    style.surface = surfaceOf(context, {.fill = fill, .border = mixed(fill, lead, 0.4F)}, style.shape);
    const Bed bed = bedOn(style.surface, context.ground);
    style.text = textOn(context, bed.tones, {plain ? context.text : context.inkOf(hue)}, kSmall);
    style.badge = plateOf(context, context.markFill(lead, bed.tones, Form::Plate), style.badgeShape);
    return style;
}

PopupStyle popupOf(const DeriveContext& context, Color fill, Color frame, Hue hue)
{
    const ShapeKind button = context.look.controlShape;
    PopupStyle style;
    style.shape = context.look.panelShape;
    style.headerShape = context.look.panelShape;
    style.iconShape = ShapeKind::Pill;
    style.surface = groundOf(context, fill, frame, style.shape);
    style.header = bareSurface(context, style.headerShape);
    style.icon = badgeOf(context, hue, context.ground, style.iconShape);
    const Bed bed = bedOn(style.surface, context.ground);
    const Color ink = context.inkOn(bedOn(style.icon, bed).tones);
    style.iconText = textOf(context, ink, ink, kGlyph);
    style.titleText = textOn(context, bed.tones, {context.strongText, context.text}, kPopupTitle);
    style.messageText = textOn(context, bed.tones, {context.text});
    style.closeButton = buttonOf(context, {Hue::Neutral, Emphasis::Quiet}, bed, button);
    style.primaryAction = buttonOf(context, {hue, Emphasis::Solid, kLabel}, bed, button);
    style.secondaryAction = buttonOf(context, {}, bed, button);
    style.showShadow = context.look.form(Form::Raised).shadow > 0;
    style.headerHeight = 64;
    style.iconSize = 32;
    style.paddingX = 20;
    style.paddingY = 20;
    style.actionWidth = 128;
    style.actionHeight = 34;
    style.actionGap = 8;
    return style;
}

// A failure is told, not shouted: the badge is red, the frame leans to red, and the one button is only
// tinted.
PopupStyle dangerPopup(const DeriveContext& context)
{
    const Color frame = mixed(context.theme.frame, context.solid(Hue::Danger), 0.6F);
    PopupStyle style = popupOf(context, context.grounds.dangerPopup, frame, Hue::Danger);
    const Bed bed = bedOn(style.surface, context.ground);
    style.primaryAction =
        buttonOf(context, {Hue::Danger, Emphasis::Soft, kLabel}, bed, context.look.controlShape);
    return style;
}

TooltipStyle tooltipOf(const DeriveContext& context)
{
    const Color fill = context.groundFill(towards(context.ground.fill, context.control.normal, 0.05F));
    TooltipStyle style;
    style.shape = ShapeKind::RoundedRect;
    style.iconShape = ShapeKind::Pill;
    style.railShape = ShapeKind::Pill;
    style.surface = groundOf(context, fill, mixed(fill, context.edge, 0.6F), style.shape);
    style.surface.useNoise = false;
    style.showShadow = context.look.form(Form::Raised).shadow > 0;
    const Bed bed = bedOn(style.surface, context.ground);
    style.textStyle = textOn(context, bed.tones, {context.text});
    style.icon = badgeOf(context, Hue::Accent, bed, style.iconShape);
    const Color ink = context.inkOn(bedOn(style.icon, bed).tones);
    style.iconText = textOf(context, ink, ink, {.points = -1, .weight = 300});
    style.accentRail =
        plateOf(context, context.markFill(context.theme.accent, bed.tones, Form::Plate), style.railShape);
    return style;
}

} // namespace

void buildTexts(const DeriveContext& context, StyleSheet& sheet)
{
    VariantTable<TextStyle>& texts = sheet.table<TextStyle>();
    const Tones& ground = context.ground.tones;
    texts.set(L"default", textOn(context, ground, {context.text}));
    texts.set(L"title", textOn(context, ground, {context.strongText}, kLabel));
    texts.set(L"muted", textOn(context, ground, {context.mutedText}));
    FontSpec mono = context.theme.monoFont;
    mono.color = context.text;
    mono.disabledColor = context.disabledText;
    texts.set(L"mono", mono);
    texts.set(L"danger", textOn(context, ground, {context.inkOf(Hue::Danger)}));
}

void buildPanels(const DeriveContext& context, StyleSheet& sheet)
{
    PanelStyle style;
    style.shape = context.look.panelShape;
    style.surface = groundOf(context, context.grounds.panel, context.hairline, style.shape);
    style.padding = 16;
    PanelStyle glass = style;
    glass.surface =
        groundOf(context, context.grounds.glass, mixed(context.hairline, context.edge, 0.4F), glass.shape);
    glass.surface.opacity = glass.surface.useGradient ? kGlassOpacity : glass.surface.opacity;
    sheet.table<PanelStyle>().set(L"default", std::move(style));
    sheet.table<PanelStyle>().set(L"glass", std::move(glass));
}

void buildCards(const DeriveContext& context, StyleSheet& sheet)
{
    VariantTable<CardStyle>& cards = sheet.table<CardStyle>();
    cards.set(L"default", cardOf(context, context.grounds.card, context.hairline));
    cards.set(L"raised", raisedCard(context));
    cards.set(L"dashboard", dashboardCard(context));
}

void buildTitleBar(const DeriveContext& context, StyleSheet& sheet)
{
    const bool flush = context.look.flushCaptionButtons;
    ChromeTitleBarStyle style;
    style.shape = ShapeKind::Rect;
    style.surface = groundOf(context, context.header.fill, context.hairline, style.shape);
    style.surface.drawBorder = false;
    const Bed bed = bedOn(style.surface, context.ground);
    style.titleText = textOn(context, bed.tones, {context.text, context.strongText}, flush ? kSmall : kLabel);
    style.titleButton = buttonOf(context, {Hue::Neutral, Emphasis::Quiet}, bed,
                                 flush ? ShapeKind::Rect : context.look.controlShape);
    style.buttonWidth = flush ? 46 : 34;
    style.buttonHeight = flush ? 32 : 26;
    style.buttonTop = flush ? 0 : 7;
    style.buttonGap = flush ? 0 : 4;
    style.rightMargin = flush ? 0 : 8;
    style.headerActionGap = 4;
    style.headerActionGroupGap = 12;
    style.iconSize = 16;
    style.iconLeft = 12;
    style.titleLeft = 36;
    sheet.table<ChromeTitleBarStyle>().set(kDefaultVariant, std::move(style));
}

void buildStatusChips(const DeriveContext& context, StyleSheet& sheet)
{
    VariantTable<StatusChipStyle>& chips = sheet.table<StatusChipStyle>();
    chips.set(L"default", chipOf(context, Hue::Neutral));
    chips.set(L"success", chipOf(context, Hue::Success));
    chips.set(L"warning", chipOf(context, Hue::Warning));
    chips.set(L"danger", chipOf(context, Hue::Danger));
}

void buildPopups(const DeriveContext& context, StyleSheet& sheet)
{
    VariantTable<PopupStyle>& popups = sheet.table<PopupStyle>();
    popups.set(L"default", popupOf(context, context.grounds.panel, context.theme.frame, Hue::Accent));
    popups.set(L"danger", dangerPopup(context));
}

void buildTooltips(const DeriveContext& context, StyleSheet& sheet)
{
    const TooltipStyle plain = tooltipOf(context);
    TooltipStyle help = plain;
    help.showAccentRail = true;
    help.showIcon = true;
    help.iconSize = 20;
    help.paddingX = 14;
    help.paddingY = 10;
    help.maxWidth = 380;
    help.gap = 10;
    sheet.table<TooltipStyle>().set(L"default", plain);
    sheet.table<TooltipStyle>().set(L"designed-help", std::move(help));
}

} // namespace vela
