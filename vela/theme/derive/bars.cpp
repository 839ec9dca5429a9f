// Progress bar, scroll bar, title bar and menu bar.
#include "vela/theme/derive/builders.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/buttons.h"

namespace vela::derive {
namespace {

// A thin bar without a frame: the track is an outline, its inset makes it six pixels of the control's 28.
void makeSlim(const Context& context, ProgressBarStyle& style)
{
    style.frame = bareSurface(context, style.frameShape);
    style.track =
        surfaceOf(context, {.fill = context.control.normal, .border = context.edge}, style.trackShape);
    style.insetX = 0;
    style.insetY = 11;
}

void makeFramed(const Context& context, ProgressBarStyle& style)
{
    const Color well = context.containerFill(towards(context.backdrop.fill, context.theme.shell, 0.05F));
    style.frame =
        surfaceOf(context, {.fill = context.backdrop.fill, .border = context.edge}, style.frameShape);
    style.track = sunkenSurface(context, well, context.hairline, style.trackShape);
    style.insetX = 4;
    style.insetY = 4;
}

SurfaceStyle thumbOf(const Context& context, Color fill, Elevation elevation, ShapeKind shape)
{
    return surfaceOf(
        context, {.fill = fill, .border = fill, .elevation = elevation, .material = MaterialRole::Control},
        shape);
}

// Bare until the pointer comes, and always where the arrow's one colour is seen.
PerState<SurfaceStyle> arrowButtons(const Context& context, Color arrow, const Backdrop& backdrop,
                                    ShapeKind shape)
{
    const auto overlay = [&](float amount, std::initializer_list<Color> others) {
        return context.fillBehind(arrow, backdrop.fill, context.overlay(backdrop, amount), Elevation::Flat,
                                  others);
    };
    const Color hot = overlay(0.055F, {backdrop.fill});
    const Color pressed = overlay(0.10F, {backdrop.fill, hot});
    return {.normal = bareSurface(context, shape),
            .hot = flatSurface(context, hot, shape),
            .pressed = flatSurface(context, pressed, shape),
            .disabled = bareSurface(context, shape),
            .active = flatSurface(context, overlay(0.075F, {backdrop.fill, hot, pressed}), shape)};
}

} // namespace

void build(const Context& context, VariantTable<ProgressBarStyle>& bars)
{
    ProgressBarStyle& style = bars.defaultRecord();
    style.shape = context.mode.trackShape;
    style.frameShape = context.mode.trackShape;
    style.trackShape = context.mode.trackShape;
    style.fillShape = context.mode.trackShape;
    if (context.mode.slimTracks)
        makeSlim(context, style);
    else
        makeFramed(context, style);
    const Backdrop track = backdropOf(style.track, context.backdrop);
    const Color fill = context.markFill(context.theme.accent, track.tones, Elevation::Raised);
    // Without a border: it would be open at the end that moves.
    style.fill = surfaceOf(context,
                           {.fill = fill,
                            .border = fill,
                            .elevation = Elevation::Raised,
                            .material = MaterialRole::Accent,
                            .bordered = false},
                           style.fillShape);
    style.fill.showShadow = false;
    ToneRange label = backdropOf(style.frame, context.backdrop).tones;
    label.include(context.backdrop.tones);
    style.labelText = textOn(context, label, {context.text}, kLabel);
    style.labelWidth = 52;
    style.labelPadding = 8;
}

void deriveScrollBar(const Context& context, const Backdrop& backdrop, ScrollBarStyle& style)
{
    style.trackShape = context.mode.trackShape;
    style.thumbShape = context.mode.trackShape;
    style.buttonShape = context.mode.controlShape;
    const Color groove = context.stateFill(context.overlay(backdrop, 0.035F), Elevation::Sunken, {});
    style.track = surfaceOf(
        context, {.fill = groove, .border = groove, .elevation = Elevation::Sunken, .bordered = false},
        style.trackShape);
    const Backdrop track = backdropOf(style.track, backdrop);

    const Color rest = context.mark(mixOklab(context.edge, context.theme.mutedText, 0.3F), track.tones);
    const Color pole = strongestOn(track.tones);
    const auto fill = [&](Color wanted, Elevation elevation, std::initializer_list<Color> others) {
        return context.markFill(wanted, track.tones, elevation, others);
    };
    const Color normal = fill(rest, Elevation::Raised, {});
    const Color hot = fill(mixOklab(rest, pole, 0.25F), Elevation::Raised, {normal});
    const Color pressed = fill(context.theme.accent, Elevation::Pressed, {normal, hot});
    const Color active = fill(context.theme.accentHot, Elevation::Raised, {normal, hot, pressed});
    style.thumb = {.normal = thumbOf(context, normal, Elevation::Raised, style.thumbShape),
                   .hot = thumbOf(context, hot, Elevation::Raised, style.thumbShape),
                   .pressed = thumbOf(context, pressed, Elevation::Pressed, style.thumbShape),
                   .disabled = flatSurface(context, mixOklab(track.fill, rest, 0.35F), style.thumbShape),
                   .active = thumbOf(context, active, Elevation::Raised, style.thumbShape)};
    style.arrow = context.readable({context.theme.mutedText, context.text}, backdrop.tones);
    style.decrementButton = arrowButtons(context, style.arrow, backdrop, style.buttonShape);
    style.incrementButton = style.decrementButton;
    style.buttonExtent = 16;
    style.minThumbExtent = 28;
    style.trackPadding = 3;
    style.trackThickness = 12;
    style.thumbThickness = context.mode.slimTracks ? 6 : 8;
    style.showButtons = false;
}

void build(const Context& context, VariantTable<ScrollBarStyle>& bars)
{
    deriveScrollBar(context, context.backdrop, bars.defaultRecord());
}

void build(const Context& context, VariantTable<ChromeTitleBarStyle>& titleBars)
{
    const bool flush = context.mode.flushCaptionButtons;
    ChromeTitleBarStyle& style = titleBars.defaultRecord();
    style.shape = ShapeKind::Rect;
    style.surface = containerSurface(context, context.headerFill, context.hairline, style.shape);
    style.surface.showOutline = false;
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    style.titleText =
        textOn(context, backdrop.tones, {context.text, context.strongText}, flush ? kSmall : kLabel);
    deriveButton(context, {Intent::Neutral, Emphasis::Quiet}, backdrop,
                 flush ? ShapeKind::Rect : context.mode.controlShape, style.titleButton);
    const Color closing = solidFill(context, context.solidColor(Intent::Danger), Elevation::Flat);
    style.closeHotColor = context.strongestText(context.shadedTones(closing, Elevation::Flat));
    style.closePressedColor = style.closeHotColor;
    const Color closingNow = context.fillBehind(
        style.closeHotColor, closing, mixOklab(closing, backdrop.fill, 0.2F), Elevation::Flat, {closing});
    style.closeHotSurface = flatSurface(context, closing, style.titleButton.shape);
    style.closePressedSurface = flatSurface(context, closingNow, style.titleButton.shape);
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
}

void build(const Context& context, VariantTable<MenuBarStyle>& bars)
{
    const Color bar = context.backdrop.fill;
    const Color text = context.text;
    const Backdrop backdrop = {bar, context.shadedTones(bar, Elevation::Container)};
    const auto item = [&](float amount, std::initializer_list<Color> others) {
        return context.fillBehind(text, bar, context.overlay(backdrop, amount), Elevation::Flat, others);
    };
    const Color hot = item(0.055F, {bar});
    const Color pressed = item(0.09F, {bar, hot});
    const Color active = context.fillBehind(text, bar, mixOklab(bar, context.theme.accent, 0.18F),
                                            Elevation::Flat, {bar, hot, pressed});
    MenuBarStyle& style = bars.defaultRecord();
    style.surface = containerSurface(context, bar, context.hairline, style.shape);
    style.surface.showOutline = false;
    style.popupSurface = containerSurface(context, bar, mixOklab(bar, context.edge, 0.6F), style.popupShape);
    style.popupSurface.useNoise = false;
    style.itemSurface = bareSurface(context, style.itemShape);
    style.itemHotSurface = flatSurface(context, hot, style.itemShape);
    style.itemPressedSurface = flatSurface(context, pressed, style.itemShape);
    style.itemActiveSurface = flatSurface(context, active, style.itemShape);
    style.popupItemHotSurface = flatSurface(context, hot, style.popupItemShape);
    style.popupItemPressedSurface = flatSurface(context, pressed, style.popupItemShape);

    ToneRange faces = backdrop.tones;
    for (const Color fill : {hot, pressed, active})
        faces.include(context.shadedTones(fill, Elevation::Flat));
    style.itemText = textOn(context, faces, {context.text});
    style.shortcutText = textOn(context, faces, {context.mutedText, context.text}, kSmall);
    style.arrow = context.mark(context.theme.mutedText, faces);
    style.check = context.mark(context.theme.accent, faces);
    style.separator = towards(bar, context.theme.border, 0.12F);
}

} // namespace vela::derive
