// List boxes and table lists.
#include "vela/theme/derive/builders.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/surfaces.h"
#include "vela/theme/derive/texts.h"

namespace vela::derive {
namespace {

// What lists and tables show of a row: one text colour is read on all of them.
struct RowFills {
    Color text;
    Color list;
    Color hot;
    Color pressed;
    Color selected;
    Color selectedHot;
};

RowFills rowFills(const Context& context, Color list)
{
    const Color text = context.sharedText({context.theme.text, context.theme.textHot},
                                          context.shadedTones(list, Elevation::Container));
    const Backdrop backdrop = {list, list};
    const auto row = [&](Color wanted, std::initializer_list<Color> others) {
        return context.fillBehind(text, list, wanted, Elevation::Flat, others);
    };
    RowFills fills = {};
    fills.text = text;
    fills.list = list;
    fills.hot = row(context.overlay(backdrop, 0.055F), {list});
    fills.pressed = row(context.overlay(backdrop, 0.09F), {list, fills.hot});
    fills.selected = row(mixOklab(list, context.theme.accent, 0.18F), {list, fills.hot, fills.pressed});
    fills.selectedHot =
        row(mixOklab(list, context.theme.accent, 0.26F), {list, fills.hot, fills.pressed, fills.selected});
    return fills;
}

ToneRange tonesOf(const Context& context, const RowFills& fills)
{
    ToneRange tones = context.shadedTones(fills.list, Elevation::Container);
    for (const Color fill : {fills.hot, fills.pressed, fills.selected, fills.selectedHot})
        tones.include(context.shadedTones(fill, Elevation::Flat));
    return tones;
}

Color listFill(const Context& context) { return context.containerFill(context.theme.control); }

SurfaceStyle railOn(const Context& context, const RowFills& fills, ShapeKind shape)
{
    ToneRange rows = context.shadedTones(fills.selected, Elevation::Flat);
    rows.include(context.shadedTones(fills.selectedHot, Elevation::Flat));
    return flatSurface(context, context.markFill(context.theme.accent, rows, Elevation::Flat), shape);
}

} // namespace

void build(const Context& context, VariantTable<ListBoxStyle>& boxes)
{
    const RowFills fills = rowFills(context, listFill(context));
    const ToneRange tones = tonesOf(context, fills);
    ListBoxStyle& style = boxes.defaultRecord();
    style.shape = context.mode.panelShape;
    style.rowShape = context.mode.slimTracks ? ShapeKind::RoundedRect : ShapeKind::Rect;
    style.selectedRowShape = style.rowShape;
    style.surface =
        containerSurface(context, fills.list, mixOklab(context.hairline, context.edge, 0.4F), style.shape);
    style.row = bareSurface(context, style.rowShape);
    style.rowHot = flatSurface(context, fills.hot, style.rowShape);
    style.rowPressed = flatSurface(context, fills.pressed, style.rowShape);
    style.selectedRow = flatSurface(context, fills.selected, style.selectedRowShape);
    style.selectedRowHot = flatSurface(context, fills.selectedHot, style.selectedRowShape);
    style.selectedRail = railOn(context, fills, style.selectedRailShape);
    style.text = textOn(context, tones, {fills.text});
    style.selectedText = textOn(context, tones, {context.theme.textHot, fills.text});
    style.disabledText = textOf(context, style.text.disabledColor, style.text.disabledColor);
    style.separator = towards(fills.list, context.theme.border, 0.10F);
    deriveScrollBar(context, {fills.list, context.shadedTones(fills.list, Elevation::Container)},
                    style.scrollBar);
    style.rowHeight = 32;
}

void build(const Context& context, VariantTable<TableListStyle>& lists)
{
    const RowFills fills = rowFills(context, listFill(context));
    const ToneRange tones = tonesOf(context, fills);
    TableListStyle& style = lists.defaultRecord();
    style.shape = context.mode.panelShape;
    style.surface =
        containerSurface(context, fills.list, mixOklab(context.hairline, context.edge, 0.4F), style.shape);
    style.rowText = textOn(context, tones, {fills.text});
    style.selectedText = textOn(context, tones, {context.theme.textHot, fills.text});
    const Color text = style.rowText.color;
    const Color strip = context.fillBehind(text, fills.list, towards(fills.list, context.headerFill, 0.05F),
                                           Elevation::Container, {fills.list});
    style.header = containerSurface(context, strip, context.hairline, style.headerShape);
    style.header.showOutline = false;
    const ToneRange head = context.shadedTones(strip, Elevation::Container);
    style.headerText = textOn(context, head, {context.theme.mutedText, text}, kLabel);
    style.row = bareSurface(context, style.rowShape);
    style.selectedRow = flatSurface(context, fills.selected, style.selectedRowShape);
    style.selectedRail = railOn(context, fills, style.selectedRailShape);

    const auto severity = [&](Intent intent, float amount, std::initializer_list<Color> others) {
        return context.fillBehind(text, fills.list, mixOklab(fills.list, context.solidColor(intent), amount),
                                  Elevation::Flat, others);
    };
    style.highSeverityFill = severity(Intent::Danger, 0.30F, {fills.list});
    style.mediumSeverityFill = severity(Intent::Warning, 0.22F, {fills.list, style.highSeverityFill});
    style.lowSeverityFill =
        severity(Intent::Success, 0.18F, {fills.list, style.highSeverityFill, style.mediumSeverityFill});
    style.highSeverityText = textOn(context, style.highSeverityFill, {text}, kLabel);

    style.separator = towards(fills.list, context.theme.border, 0.10F);
    style.resizeGrip = towards(strip, context.edge, 0.20F);
    style.resizeGripHot = context.mark(context.theme.accent, head);
    style.sortIndicator = context.mark(context.theme.mutedText, head);
    style.sortIndicatorHot = context.mark(context.theme.accentHot, head);
    style.rowHeight = 32;
}

} // namespace vela::derive
