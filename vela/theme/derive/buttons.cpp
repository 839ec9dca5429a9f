// Buttons, bitmap buttons, and tabs, which are made of buttons.
#include "vela/theme/derive/buttons.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/builders.h"

#include <algorithm>
#include <iterator>

namespace vela::derive {
namespace {

using Faces = PerState<Face>;

Face controlFace(Color fill, Color border, Elevation elevation)
{
    return {.fill = fill, .border = border, .elevation = elevation, .material = MaterialRole::Control};
}

Faces standardFaces(const Context& context, const Backdrop& backdrop)
{
    const PerState<Color>& fills = context.control;
    const Color edge = context.mark(context.edge, backdrop.tones);
    const Color activeEdge = context.mark(context.theme.accent, backdrop.tones);
    return {.normal = controlFace(fills.normal, edge, Elevation::Raised),
            .hot = controlFace(fills.hot, context.mark(context.hotEdge, backdrop.tones), Elevation::Raised),
            .pressed = controlFace(fills.pressed, edge, Elevation::Pressed),
            .disabled = controlFace(fills.disabled, context.quietEdge, Elevation::Flat),
            .active = controlFace(fills.active, activeEdge, Elevation::Pressed)};
}

Faces outlineFaces(const Context& context, const Backdrop& backdrop)
{
    Faces faces = standardFaces(context, backdrop);
    const auto faded = [&](Color fill, Elevation elevation, std::initializer_list<Color> others) {
        return context.stateFill(mixOklab(fill, backdrop.fill, 0.55F), elevation, others);
    };
    faces.normal.fill = faded(faces.normal.fill, Elevation::Raised, {});
    faces.hot.fill = faded(faces.hot.fill, Elevation::Raised, {faces.normal.fill});
    faces.pressed.fill = faded(faces.pressed.fill, Elevation::Pressed, {faces.normal.fill, faces.hot.fill});
    faces.active.fill =
        faded(faces.active.fill, Elevation::Pressed, {faces.normal.fill, faces.hot.fill, faces.pressed.fill});
    return faces;
}

Faces quietFaces(const Context& context, const Backdrop& backdrop)
{
    // The faintest face must stand out from the light that a material throws on a dark backdrop.
    const float light = context.materials && context.dark ? 0.03F : 0.0F;
    const auto overlay = [&](float amount) {
        return Face{
            .fill = context.stateFill(context.overlay(backdrop, amount), Elevation::Flat, {backdrop.fill}),
            .border = context.hairline,
            .bordered = false};
    };
    const Face bare = {.fill = backdrop.fill, .border = context.hairline, .drawn = false};
    Faces faces = {.normal = bare,
                   .hot = overlay(0.055F + light),
                   .pressed = overlay(0.10F),
                   .disabled = bare,
                   .active = overlay(0.075F)};
    faces.pressed.fill = context.stateFill(faces.pressed.fill, Elevation::Flat, {faces.hot.fill});
    faces.active.fill = context.stateFill(mixOklab(faces.active.fill, context.theme.accent, 0.18F),
                                          Elevation::Flat, {faces.hot.fill, faces.pressed.fill});
    return faces;
}

Faces softFaces(const Context& context, Intent intent, const Backdrop& backdrop)
{
    const Color solid = context.solidColor(intent);
    const Color border = context.mark(solid, backdrop.tones);
    const auto tinted = [&](float amount, Elevation elevation, std::initializer_list<Color> others) {
        Face face = controlFace(context.stateFill(mixOklab(backdrop.fill, solid, amount), elevation, others),
                                border, elevation);
        return face;
    };
    Faces faces = standardFaces(context, backdrop);
    faces.normal = tinted(0.14F, Elevation::Raised, {});
    faces.hot = tinted(0.24F, Elevation::Raised, {faces.normal.fill});
    faces.pressed = tinted(0.08F, Elevation::Pressed, {faces.normal.fill, faces.hot.fill});
    faces.active = tinted(0.32F, Elevation::Pressed, {faces.normal.fill, faces.hot.fill, faces.pressed.fill});
    return faces;
}

Faces solidFaces(const Context& context, Intent intent, const Backdrop& backdrop)
{
    const Color solid = context.solidColor(intent);
    const Color hot =
        intent == Intent::Accent ? context.theme.accentHot : lightened(solid, context.dark ? 0.05F : -0.05F);
    Faces faces = standardFaces(context, backdrop);
    const Color normal = solidFill(context, solid, Elevation::Raised);
    // The caption keeps its colour while the button is used.
    const Color text = context.strongestText(context.shadedTones(normal, Elevation::Raised));
    const auto face = [&](Color wanted, Elevation elevation, std::initializer_list<Color> others) {
        const Color fill =
            context.fillBehind(text, normal, wanted, elevation, others, context.solidTextTarget);
        return solidFace(context, fill, backdrop, elevation);
    };
    faces.normal = solidFace(context, normal, backdrop, Elevation::Raised);
    faces.hot = face(hot, Elevation::Raised, {normal});
    faces.pressed = face(mixOklab(solid, backdrop.fill, 0.2F), Elevation::Pressed, {normal, faces.hot.fill});
    faces.active = face(mixOklab(solid, context.strongText, 0.15F), Elevation::Pressed,
                        {normal, faces.hot.fill, faces.pressed.fill});
    return faces;
}

Faces facesFor(const Context& context, const ButtonRecipe& recipe, const Backdrop& backdrop)
{
    switch (recipe.emphasis) {
    case Emphasis::Solid: return solidFaces(context, recipe.intent, backdrop);
    case Emphasis::Outline: return outlineFaces(context, backdrop);
    case Emphasis::Soft: return softFaces(context, recipe.intent, backdrop);
    case Emphasis::Quiet: return quietFaces(context, backdrop);
    case Emphasis::Standard: break;
    }
    return standardFaces(context, backdrop);
}

Color captionOn(const Context& context, const ButtonRecipe& recipe, VisualState state, const ToneRange& face)
{
    if (recipe.emphasis == Emphasis::Solid)
        return context.strongestText(face);
    if (recipe.emphasis == Emphasis::Soft)
        return context.readable({context.textColor(recipe.intent)}, face);
    const bool lively = state == VisualState::Hot || state == VisualState::Active;
    return lively ? context.readable({context.strongText, context.text}, face)
                  : context.readable({context.text, context.strongText}, face);
}

// A button face with a drawing on it: it keeps one surface, and the drawing takes the tint.
struct BitmapButtonVariant {
    std::wstring_view name;
    ButtonRecipe recipe;
    bool muted = false;
};

constexpr BitmapButtonVariant kBitmapButtonVariants[] = {
    {kDefaultVariant, {Intent::Neutral, Emphasis::Quiet}},
    {L"action", {Intent::Neutral, Emphasis::Standard}},
    {L"primary-action", {Intent::Accent, Emphasis::Solid, kLabel}},
    {L"muted", {Intent::Neutral, Emphasis::Quiet}, true},
};

} // namespace

Emphasis emphasisOf(std::wstring_view variant) noexcept
{
    const auto* const known = std::ranges::find_if(
        kButtonVariants, [variant](const ButtonVariant& row) { return sameName(row.name, variant); });
    return known != std::end(kButtonVariants) ? known->recipe.emphasis : Emphasis::Standard;
}

void deriveButton(const Context& context, const ButtonRecipe& recipe, const Backdrop& backdrop,
                  ShapeKind shape, ButtonStyle& style)
{
    const Faces faces = facesFor(context, recipe, backdrop);
    style.shape = shape;
    style.hitShape = shape;
    const Color focus = context.mark(context.focus, backdrop.tones);
    const Color solidText =
        context.strongestText(context.shadedTones(faces.normal.fill, faces.normal.elevation));
    for (int index = 0; index < kVisualStateCount; ++index) {
        const auto state = static_cast<VisualState>(index);
        SurfaceStyle& surface = style.surface[state];
        surface = surfaceOf(context, faces[state], shape);
        surface.glow = focus;
        const ToneRange face = backdropOf(surface, backdrop).tones;
        const bool solid = recipe.emphasis == Emphasis::Solid && state != VisualState::Disabled;
        const Color caption = solid ? solidText : captionOn(context, recipe, state, face);
        style.text[state] = textOf(context, caption, context.disabledTextOn(caption, face), recipe.step);
    }
    style.text.disabled.color = style.text.disabled.disabledColor;
}

void build(const Context& context, VariantTable<ButtonStyle>& buttons)
{
    for (const ButtonVariant& variant : kButtonVariants)
        deriveButton(context, variant.recipe, context.backdrop, context.mode.controlShape,
                     buttons.ensure(variant.name));
}

void build(const Context& context, VariantTable<BitmapButtonStyle>& buttons)
{
    ButtonStyle face;
    for (const BitmapButtonVariant& variant : kBitmapButtonVariants) {
        deriveButton(context, variant.recipe, context.backdrop, context.mode.controlShape, face);
        BitmapButtonStyle& style = buttons.ensure(variant.name);
        style.text = face.text.normal;
        style.image = face.surface.normal;
        if (variant.muted)
            style.text.color = context.mutedText;
        style.tint = style.text.color;
    }
}

void build(const Context& context, VariantTable<TabsStyle>& tabStrips)
{
    TabsStyle& style = tabStrips.defaultRecord();
    style.shape = context.mode.controlShape;
    deriveButton(context, {Intent::Neutral, Emphasis::Quiet}, context.backdrop, style.shape,
                 style.itemButton);
    // The open tab is told by more than an overlay: its face is the control's own, with an edge in the
    // accent.
    SurfaceStyle& open = style.itemButton.surface.active;
    const Backdrop& backdrop = context.backdrop;
    const Color fill =
        context.stateFill(context.control.normal, Elevation::Raised,
                          {style.itemButton.surface.hot.fill, style.itemButton.surface.pressed.fill});
    const Color focus = open.glow;
    open = surfaceOf(context,
                     {.fill = fill,
                      .border = context.mark(context.theme.accent, backdrop.tones),
                      .elevation = Elevation::Raised,
                      .material = MaterialRole::Control},
                     style.shape);
    open.glow = focus;
    style.itemButton.text.active =
        textOn(context, backdropOf(open, backdrop).tones, {context.strongText, context.text});
    style.verticalItemHeight = 36;
}

} // namespace vela::derive
