// Text inputs, selectable texts, check boxes and select boxes.
#include "vela/theme/derive/buttons.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/builders.h"

namespace vela::derive {
namespace {

// The fills of a field. One text colour serves all its states, so they stay close enough to each other.
struct FieldFills {
    Color ink;
    Color normal;
    Color hot;
    Color pressed;
    Color focused;
    Color disabled;
};

FieldFills fieldFills(const DeriveContext& context, Elevation elevation)
{
    FieldFills fills = {};
    fills.normal = context.stateFill(context.theme.control, elevation, {});
    const Color ink = context.inkUnder({context.theme.text, context.theme.textHot},
                                       context.shades(fills.normal, elevation));
    fills.ink = ink;
    const auto state = [&](Color wanted, std::initializer_list<Color> others) {
        return context.fillUnder(ink, fills.normal, wanted, elevation, others);
    };
    fills.hot = state(mixed(fills.normal, context.control.hot, 0.4F), {fills.normal});
    fills.pressed = state(mixed(fills.normal, context.control.pressed, 0.5F), {fills.normal, fills.hot});
    // The field in use is the calmest one: deeper in the dark, whiter in the light.
    fills.focused = state(lightened(fills.normal, context.dark ? -0.03F : 0.03F), {});
    // The ink has to be read here too: what is locked is shown on it.
    fills.disabled = context.fillUnder(ink, fills.normal, context.control.disabled, Elevation::Flat, {});
    return fills;
}

// A veil of the accent over a fill, as strong as the ink allows.
SurfaceStyle selectionOn(const DeriveContext& context, Color ink, Color fill, ShapeKind shape)
{
    const Color veil =
        context.fillUnder(ink, fill, mixed(fill, context.theme.accent, 0.38F), Elevation::Flat, {fill});
    return flatSurface(context, veil, shape);
}

SurfaceStyle focusedField(const DeriveContext& context, Color fill, ShapeKind shape)
{
    SurfaceStyle surface = sunkenSurface(context, fill, context.focus, shape);
    surface.showOutline = true;
    surface.outlineWidth = 2;
    return surface;
}

void addAttachments(const DeriveContext& context, Color ink, Color field, TextInputStyle& style)
{
    const Color chip =
        context.fillUnder(ink, field, context.veil({field, field}, 0.07F), Elevation::Flat, {field});
    style.attachmentSurface =
        surfaceOf(context, {.fill = chip, .border = context.hairline}, style.attachmentShape);
    style.attachmentImageSurface = flatSurface(
        context,
        context.markFill(context.theme.accent, context.shades(chip, Elevation::Flat), Elevation::Flat),
        style.attachmentImageShape);
    style.attachmentRemoveSurface = flatSurface(
        context, context.fillUnder(ink, chip, context.veil({chip, chip}, 0.08F), Elevation::Flat, {chip}),
        style.attachmentRemoveShape);
    Tones chips = context.shades(chip, Elevation::Flat);
    chips.include(style.attachmentRemoveSurface.fill);
    style.attachmentText = textOn(context, chips, {ink}, kSmall);
    style.attachmentIconColor = context.mark(context.mutedText, chips);
}

} // namespace

void buildTextInput(const DeriveContext& context, StyleSheet& sheet)
{
    const FieldFills fills = fieldFills(context, Elevation::Sunken);
    TextInputStyle& style = sheet.table<TextInputStyle>().defaultRecord();
    style.shape = context.mode.controlShape;
    style.surface = sunkenSurface(context, fills.normal, context.edge, style.shape);
    style.hotSurface = sunkenSurface(context, fills.hot, context.hotEdge, style.shape);
    style.pressedSurface = sunkenSurface(context, fills.pressed, context.edge, style.shape);
    style.focusedSurface = focusedField(context, fills.focused, style.shape);
    style.disabledSurface =
        surfaceOf(context, {.fill = fills.disabled, .border = context.quietEdge}, style.shape);

    Tones faces = context.shades(fills.normal, Elevation::Sunken);
    for (const Color fill : {fills.hot, fills.pressed, fills.focused})
        faces.include(context.shades(fill, Elevation::Sunken));
    style.text = textOn(context, faces, {fills.ink});
    style.text.disabledColor = context.faint(context.text, context.shades(fills.disabled, Elevation::Flat));
    Tones quietFaces = faces; // and that of a locked field, whose text is no louder than a placeholder
    quietFaces.include(context.shades(fills.disabled, Elevation::Flat));
    style.placeholderText = textOn(context, quietFaces, {context.theme.mutedText});
    style.placeholderText.disabledColor = style.text.disabledColor;
    style.selection = selectionOn(context, style.text.color, fills.focused, ShapeKind::Rect);
    style.caretColor = context.mark(context.theme.textHot, faces);
    addAttachments(context, style.text.color, fills.normal, style);
}

void buildSelectableText(const DeriveContext& context, StyleSheet& sheet)
{
    SelectableTextStyle& style = sheet.table<SelectableTextStyle>().defaultRecord();
    style.surface = bareSurface(context, style.shape);
    style.text = textOn(context, context.backdrop.tones, {context.text});
    style.selection = selectionOn(context, context.text, context.backdrop.fill, ShapeKind::Rect);
    style.selectedText = textOn(context, backdropOf(style.selection, context.backdrop).tones, {context.text});
}

void buildCheckBox(const DeriveContext& context, StyleSheet& sheet)
{
    const FieldFills fills = fieldFills(context, Elevation::Sunken);
    CheckBoxStyle& style = sheet.table<CheckBoxStyle>().defaultRecord();
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
    Tones boxes = backdropOf(style.boxChecked, context.backdrop).tones;
    boxes.include(backdropOf(style.boxCheckedHot, context.backdrop).tones);
    boxes.include(backdropOf(style.boxCheckedPressed, context.backdrop).tones);
    style.checkColor = context.inkOn(boxes);
    const Color disabled =
        context.markFill(context.quietEdge, style.checkColor, Elevation::Flat, {checked, hot, pressed});
    style.boxCheckedDisabled =
        surfaceOf(context, {.fill = disabled, .border = disabled, .bordered = false}, style.shape);
}

void buildSelectBox(const DeriveContext& context, StyleSheet& sheet)
{
    const FieldFills fills = fieldFills(context, Elevation::Raised);
    const auto face = [&](Color fill, Color border, Elevation elevation) {
        return Face{.fill = fill, .border = border, .elevation = elevation, .substance = Substance::Control};
    };
    SelectBoxStyle& style = sheet.table<SelectBoxStyle>().defaultRecord();
    style.shape = context.mode.controlShape;
    style.dropdownShape =
        context.mode.panelShape == ShapeKind::Rect ? ShapeKind::RoundedRect : context.mode.panelShape;
    style.surface = surfaceOf(context, face(fills.normal, context.edge, Elevation::Raised), style.shape);
    style.hotSurface = surfaceOf(context, face(fills.hot, context.hotEdge, Elevation::Raised), style.shape);
    style.pressedSurface =
        surfaceOf(context, face(fills.pressed, context.edge, Elevation::Pressed), style.shape);
    style.disabledSurface =
        surfaceOf(context, face(fills.disabled, context.quietEdge, Elevation::Flat), style.shape);

    Tones faces = context.shades(fills.normal, Elevation::Raised);
    for (const Color fill : {fills.hot, fills.pressed})
        faces.include(context.shades(fill, Elevation::Raised));
    style.text = textOn(context, faces, {fills.ink});
    style.text.disabledColor = context.faint(context.text, context.shades(fills.disabled, Elevation::Flat));
    const Color ink = style.text.color;

    style.arrowSurface = bareSurface(context, style.arrowShape);
    style.arrowHotSurface = bareSurface(context, style.arrowShape);
    style.arrowPressedSurface = bareSurface(context, style.arrowShape);
    style.arrowDisabledSurface = bareSurface(context, style.arrowShape);
    style.arrowColor = context.mark(context.theme.mutedText, faces);

    const Color list =
        context.fillUnder(ink, fills.normal, context.containerFills.raisedCard, Elevation::Container, {});
    style.dropdownSurface =
        containerSurface(context, list, mixed(list, context.edge, 0.6F), style.dropdownShape);
    const Color hot =
        context.fillUnder(ink, list, context.veil({list, list}, 0.06F), Elevation::Flat, {list});
    style.optionHotSurface = flatSurface(context, hot, ShapeKind::RoundedRect);
    style.optionSelectedSurface = flatSurface(
        context,
        context.fillUnder(ink, list, mixed(list, context.theme.accent, 0.2F), Elevation::Flat, {list, hot}),
        ShapeKind::RoundedRect);
    deriveScrollBar(context, backdropOf(style.dropdownSurface, context.backdrop), style.scrollBar);
    style.itemHeight = 32;
}

} // namespace vela::derive
