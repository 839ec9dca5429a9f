#include "vela/theme/derive/builders.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/surfaces.h"
#include "vela/theme/derive/texts.h"

namespace vela::derive {
namespace {

// Every day of the calendar is written in one of the day texts whatever its surface, so the surfaces stay
// where all of those can be read.
void deriveCalendar(const Context& context, DateInputStyle& style)
{
    const Color page = context.containerFills.raisedCard;
    const Color text = context.text;
    const Backdrop backdrop = {page, context.shadedTones(page, Elevation::Container)};
    const auto day = [&](Color wanted, std::initializer_list<Color> others) {
        return context.fillBehind(text, page, wanted, Elevation::Flat, others);
    };
    const Color hot = day(context.overlay(backdrop, 0.055F), {page});
    const Color pressed = day(context.overlay(backdrop, 0.09F), {page, hot});
    const Color selected = day(mixOklab(page, context.theme.accent, 0.26F), {page, hot, pressed});
    const Color ring = context.mark(context.theme.accent, backdrop.tones);
    const ShapeKind cell = ShapeKind::RoundedRect;
    style.popupSurface =
        containerSurface(context, page, mixOklab(page, context.edge, 0.6F), style.popupShape);
    style.popupSurface.useNoise = false;
    style.headerSurface = bareSurface(context, ShapeKind::Rect);
    style.dayHotSurface = flatSurface(context, hot, cell);
    style.dayPressedSurface = flatSurface(context, pressed, cell);
    style.daySelectedSurface = surfaceOf(context, {.fill = selected, .border = ring}, cell);
    style.todaySurface = bareSurface(context, cell);
    style.todaySurface.border = style.todaySurface.outline = ring;
    style.todaySurface.showOutline = true;

    ToneRange cells = backdrop.tones;
    for (const Color fill : {hot, pressed, selected})
        cells.include(context.shadedTones(fill, Elevation::Flat));
    style.headerText = textOn(context, backdrop.tones, {context.strongText, context.text}, kLabel);
    style.weekdayText = textOn(context, backdrop.tones, {context.mutedText, context.text}, kSmall);
    style.dayText = textOn(context, cells, {context.text});
    style.weekendText = textOn(context, cells, {context.mutedText, context.text});
    style.saturdayText = style.weekendText;
    style.sundayText = textOn(context, cells, {context.textColor(Intent::Danger)});
    const Color faint = context.disabledTextOn(context.text, cells);
    style.mutedDayText = textOf(context, faint, faint);
}

} // namespace

void build(const Context& context, VariantTable<DateInputStyle>& inputs)
{
    // Closed, it is a select box with another drop-down.
    SelectBoxStyle box;
    deriveSelectBox(context, box);
    DateInputStyle& style = inputs.defaultRecord();
    style.shape = box.shape;
    style.arrowShape = box.arrowShape;
    style.popupShape = box.dropdownShape;
    style.text = box.text;
    style.surface = box.surface;
    style.hotSurface = box.hotSurface;
    style.pressedSurface = box.pressedSurface;
    style.disabledSurface = box.disabledSurface;
    style.arrowSurface = box.arrowSurface;
    style.arrowHotSurface = box.arrowHotSurface;
    style.arrowPressedSurface = box.arrowPressedSurface;
    style.arrowColor = box.arrowColor;
    style.arrowWidth = box.arrowWidth;
    deriveCalendar(context, style);
}

} // namespace vela::derive
