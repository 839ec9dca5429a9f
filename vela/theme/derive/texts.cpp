// Texts and rich texts.
#include "vela/theme/derive/texts.h"

#include "vela/theme/derive/builders.h"
#include "vela/theme/derive/surfaces.h"

#include <algorithm>

namespace vela::derive {
namespace {

// A skin may name any number; no text of this size fits a screen.
constexpr std::int32_t kLargestPoints = 1000;

} // namespace

FontSpec textOf(const Context& context, Color color, Color disabledColor, TypeStep step)
{
    FontSpec font = context.theme.uiFont;
    font.pointSize = std::max(std::clamp(font.pointSize, 1, kLargestPoints) + step.points, 1);
    font.weight = std::clamp(font.weight + step.weight, kMinFontWeight, std::max(font.weight, 700));
    font.color = color;
    font.disabledColor = disabledColor;
    return font;
}

FontSpec textOn(const Context& context, const ToneRange& on, std::initializer_list<Color> wanted,
                TypeStep step)
{
    const Color color = context.readable(wanted, on);
    return textOf(context, color, context.disabledTextOn(color, on), step);
}

FontSpec readingTextOn(const Context& context, const ToneRange& on, std::initializer_list<Color> wanted)
{
    constexpr std::int32_t kRegular = 400;
    FontSpec font = textOn(context, on, wanted);
    font.weight = std::min(font.weight, kRegular);
    return font;
}

void build(const Context& context, VariantTable<TextStyle>& texts)
{
    const ToneRange& backdrop = context.backdrop.tones;
    texts.ensure(L"default") = readingTextOn(context, backdrop, {context.text});
    texts.ensure(L"title") = textOn(context, backdrop, {context.strongText}, kLabel);
    texts.ensure(L"muted") = readingTextOn(context, backdrop, {context.mutedText});
    FontSpec& mono = texts.ensure(L"mono");
    mono = context.theme.monoFont;
    mono.color = context.text;
    mono.disabledColor = context.disabledText;
    texts.ensure(L"danger") = textOn(context, backdrop, {context.textColor(Intent::Danger)});
}

void build(const Context& context, VariantTable<RichTextStyle>& texts)
{
    RichTextStyle& style = texts.defaultRecord();
    style.shape = context.mode.panelShape;
    style.surface = containerSurface(context, context.containerFills.card, context.hairline, style.shape);
    const Backdrop backdrop = backdropOf(style.surface, context.backdrop);
    style.text = textOn(context, backdrop.tones, {context.text});
    style.linkText = textOn(context, backdrop.tones, {context.theme.accent});
    style.linkText.underline = true;
    style.icon = badgeSurface(context, Intent::Accent, backdrop, style.iconShape);
    style.paddingX = 16;
    style.paddingY = 12;
}

} // namespace vela::derive
