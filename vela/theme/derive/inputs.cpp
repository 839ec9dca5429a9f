// Text inputs, selectable texts, check boxes and select boxes.
#include "vela/theme/derive/buttons.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/builders.h"

namespace vela::derive {
namespace {

// The fills of an input. One text colour serves all its states, so they stay close enough to each other.
struct InputFills {
    Color text;
    Color normal;
    Color hot;
    Color pressed;
    Color focused;
    Color disabled;
};

InputFills inputFills(const Context& context, Elevation elevation)
{
    InputFills fills = {};
    fills.normal = context.stateFill(context.theme.control, elevation, {});
    const Color text = context.sharedText({context.theme.text, context.theme.textHot},
                                          context.shadedTones(fills.normal, elevation));
    fills.text = text;
    const auto state = [&](Color wanted, std::initializer_list<Color> others) {
        return context.fillBehind(text, fills.normal, wanted, elevation, others);
    };
    fills.hot = state(mixOklab(fills.normal, context.control.hot, 0.4F), {fills.normal});
    fills.pressed = state(mixOklab(fills.normal, context.control.pressed, 0.5F), {fills.normal, fills.hot});
    // The input in use is the calmest one: deeper in the dark, whiter in the light.
    fills.focused = state(lightened(fills.normal, context.dark ? -0.03F : 0.03F), {});
    // The text has to be read here too: what is locked is shown on it.
    fills.disabled = context.fillBehind(text, fills.normal, context.control.disabled, Elevation::Flat, {});
    return fills;
}

// An overlay of the accent over a fill, as strong as the text allows.
SurfaceStyle selectionOn(const Context& context, Color text, Color fill, ShapeKind shape)
{
    const Color overlay =
        context.fillBehind(text, fill, mixOklab(fill, context.theme.accent, 0.38F), Elevation::Flat, {fill});
    return flatSurface(context, overlay, shape);
}

SurfaceStyle focusedInput(const Context& context, Color fill, ShapeKind shape)
{
    SurfaceStyle surface = sunkenSurface(context, fill, context.focus, shape);
    surface.showOutline = true;
    surface.outlineWidth = 2;
    return surface;
}

void addAttachments(const Context& context, Color text, Color input, TextInputStyle& style)
{
    const Color chip =
        context.fillBehind(text, input, context.overlay({input, input}, 0.07F), Elevation::Flat, {input});
    style.attachmentSurface =
        surfaceOf(context, {.fill = chip, .border = context.hairline}, style.attachmentShape);
    style.attachmentImageSurface = flatSurface(
        context,
        context.markFill(context.theme.accent, context.shadedTones(chip, Elevation::Flat), Elevation::Flat),
        style.attachmentImageShape);
    style.attachmentRemoveSurface = flatSurface(
        context,
        context.fillBehind(text, chip, context.overlay({chip, chip}, 0.08F), Elevation::Flat, {chip}),
        style.attachmentRemoveShape);
    ToneRange chips = context.shadedTones(chip, Elevation::Flat);
    chips.include(style.attachmentRemoveSurface.fill);
    style.attachmentText = textOn(context, chips, {text}, kSmall);
    style.attachmentIconColor = context.mark(context.mutedText, chips);
}

} // namespace

void build(const Context& context, VariantTable<TextInputStyle>& inputs)
{
    const InputFills fills = inputFills(context, Elevation::Sunken);
    TextInputStyle& style = inputs.defaultRecord();
    style.shape = context.mode.controlShape;
    style.surface = sunkenSurface(context, fills.normal, context.edge, style.shape);
    style.hotSurface = sunkenSurface(context, fills.hot, context.hotEdge, style.shape);
    style.pressedSurface = sunkenSurface(context, fills.pressed, context.edge, style.shape);
    style.focusedSurface = focusedInput(context, fills.focused, style.shape);
    style.disabledSurface =
        surfaceOf(context, {.fill = fills.disabled, .border = context.quietEdge}, style.shape);

    ToneRange faces = context.shadedTones(fills.normal, Elevation::Sunken);
    for (const Color fill : {fills.hot, fills.pressed, fills.focused})
        faces.include(context.shadedTones(fill, Elevation::Sunken));
    style.text = textOn(context, faces, {fills.text});
    style.text.disabledColor =
        context.disabledTextOn(context.text, context.shadedTones(fills.disabled, Elevation::Flat));
    ToneRange quietFaces = faces; // and that of a locked input, whose text is no louder than a placeholder
    quietFaces.include(context.shadedTones(fills.disabled, Elevation::Flat));
    style.placeholderText = textOn(context, quietFaces, {context.theme.mutedText});
    style.placeholderText.disabledColor = style.text.disabledColor;
    style.selection = selectionOn(context, style.text.color, fills.focused, ShapeKind::Rect);
    style.caretColor = context.mark(context.theme.textHot, faces);
    addAttachments(context, style.text.color, fills.normal, style);
}

void build(const Context& context, VariantTable<SelectableTextStyle>& texts)
{
    SelectableTextStyle& style = texts.defaultRecord();
    style.surface = bareSurface(context, style.shape);
    style.text = textOn(context, context.backdrop.tones, {context.text});
    style.selection = selectionOn(context, context.text, context.backdrop.fill, ShapeKind::Rect);
    style.selectedText = textOn(context, backdropOf(style.selection, context.backdrop).tones, {context.text});
}

void build(const Context& context, VariantTable<CheckBoxStyle>& checkBoxes)
{
    const InputFills fills = inputFills(context, Elevation::Sunken);
    CheckBoxStyle& style = checkBoxes.defaultRecord();
    style.shape = ShapeKind::RoundedRect;
    style.boxSize = 20;
    style.textLeft = 28;
    style.text = textOn(context, context.backdrop.tones, {context.text});
    style.boxUnchecked = sunkenSurface(context, fills.normal, context.edge, style.shape);
    style.boxUncheckedHot = sunkenSurface(context, fills.hot, context.hotEdge, style.shape);
    style.boxUncheckedPressed = sunkenSurface(context, fills.pressed, context.edge, style.shape);
    style.boxUncheckedDisabled =
        surfaceOf(context, {.fill = fills.disabled, .border = context.quietEdge}, style.shape);

    // One colour marks all checked boxes, so their fills keep near the accent.
    const Theme& theme = context.theme;
    const Color checked = solidFill(context, theme.accent, Elevation::Raised);
    const Color hot =
        context.stateFill(towards(checked, theme.accentHot, 0.05F), Elevation::Raised, {checked});
    const Color pressed =
        context.stateFill(towards(checked, context.backdrop.fill, 0.05F), Elevation::Pressed, {checked, hot});
    const auto box = [&](Color fill, Elevation elevation) {
        return surfaceOf(context, solidFace(context, fill, context.backdrop, elevation), style.shape);
    };
    style.boxChecked = box(checked, Elevation::Raised);
    style.boxCheckedHot = box(hot, Elevation::Raised);
    style.boxCheckedPressed = box(pressed, Elevation::Pressed);
    ToneRange boxes = backdropOf(style.boxChecked, context.backdrop).tones;
    boxes.include(backdropOf(style.boxCheckedHot, context.backdrop).tones);
    boxes.include(backdropOf(style.boxCheckedPressed, context.backdrop).tones);
    style.checkColor = context.strongestText(boxes);
    const Color disabled =
        context.markFill(context.quietEdge, style.checkColor, Elevation::Flat, {checked, hot, pressed});
    style.boxCheckedDisabled =
        surfaceOf(context, {.fill = disabled, .border = disabled, .bordered = false}, style.shape);
}

void deriveSelectBox(const Context& context, SelectBoxStyle& style)
{
    const InputFills fills = inputFills(context, Elevation::Raised);
    const auto face = [&](Color fill, Color border, Elevation elevation) {
        return Face{
            .fill = fill, .border = border, .elevation = elevation, .material = MaterialRole::Control};
    };
    style.shape = context.mode.controlShape;
    style.dropdownShape =
        context.mode.panelShape == ShapeKind::Rect ? ShapeKind::RoundedRect : context.mode.panelShape;
    style.surface = surfaceOf(context, face(fills.normal, context.edge, Elevation::Raised), style.shape);
    style.hotSurface = surfaceOf(context, face(fills.hot, context.hotEdge, Elevation::Raised), style.shape);
    style.pressedSurface =
        surfaceOf(context, face(fills.pressed, context.edge, Elevation::Pressed), style.shape);
    style.disabledSurface =
        surfaceOf(context, face(fills.disabled, context.quietEdge, Elevation::Flat), style.shape);

    ToneRange faces = context.shadedTones(fills.normal, Elevation::Raised);
    for (const Color fill : {fills.hot, fills.pressed})
        faces.include(context.shadedTones(fill, Elevation::Raised));
    style.text = textOn(context, faces, {fills.text});
    style.text.disabledColor =
        context.disabledTextOn(context.text, context.shadedTones(fills.disabled, Elevation::Flat));
    const Color text = style.text.color;

    style.arrowSurface = bareSurface(context, style.arrowShape);
    style.arrowHotSurface = bareSurface(context, style.arrowShape);
    style.arrowPressedSurface = bareSurface(context, style.arrowShape);
    style.arrowDisabledSurface = bareSurface(context, style.arrowShape);
    style.arrowColor = context.mark(context.theme.mutedText, faces);

    const Color list =
        context.fillBehind(text, fills.normal, context.containerFills.raisedCard, Elevation::Container, {});
    style.dropdownSurface =
        containerSurface(context, list, mixOklab(list, context.edge, 0.6F), style.dropdownShape);
    const Color hot =
        context.fillBehind(text, list, context.overlay({list, list}, 0.06F), Elevation::Flat, {list});
    style.optionHotSurface = flatSurface(context, hot, ShapeKind::RoundedRect);
    style.optionSelectedSurface =
        flatSurface(context,
                    context.fillBehind(text, list, mixOklab(list, context.theme.accent, 0.2F),
                                       Elevation::Flat, {list, hot}),
                    ShapeKind::RoundedRect);
    deriveScrollBar(context, backdropOf(style.dropdownSurface, context.backdrop), style.scrollBar);
    style.itemHeight = 32;
}

void build(const Context& context, VariantTable<SelectBoxStyle>& boxes)
{
    deriveSelectBox(context, boxes.defaultRecord());
}

} // namespace vela::derive
