// A shape as a few upright rectangles, for drawing it with calls that only know those. GDI's own round
// rectangles and polygons cover other pixels than the mask of the pixel layers, and other ones on each
// system; made from the mask's rows, fill and stroke meet it pixel for pixel.
#pragma once

#include "vela/render/pixels/length_limits.h"
#include "vela/render/shapes/shape_rows.h"

#include <utility>

namespace vela {

// The pixels of one row whose distance to the nearest pixel outside the shape is greater than the pen is
// wide: what a stroke of that width, drawn along the inside of the outline, leaves free.
Span innerRow(ShapeKind kind, Size size, std::int32_t penWidth, std::int32_t y) noexcept;

// Calls visit(top, row, height) for the rows from first to last, the last not included: those that are alike
// come together. rowAt(y) tells what a row is.
template <typename RowAt, typename Visit>
void visitAlikeRows(std::int32_t first, std::int32_t last, RowAt&& rowAt, Visit&& visit)
{
    if (first >= last)
        return;
    std::int32_t top = first;
    auto row = rowAt(top);
    for (std::int32_t y = first + 1; y < last; ++y) {
        auto next = rowAt(y);
        if (next == row)
            continue;
        visit(top, row, y - top);
        top = y;
        row = std::move(next);
    }
    visit(top, row, last - top);
}

// Calls visit(Rect), in the shape's own coordinates, for disjoint rectangles that together are what the
// visible rectangle, in the same coordinates, shows of the shape. Rows that are alike come as one; those out
// of sight cost nothing.
template <typename Visit>
void visitFill(ShapeKind kind, Size size, const Rect& visible, Visit&& visit)
{
    const Rect area = intersection(visible, {0, 0, size.width, size.height});
    if (isEmpty(area))
        return;
    if (isUpright(kind)) {
        visit(area);
        return;
    }
    const Span columns{area.x, area.x + area.width};
    visitAlikeRows(
        area.y, area.y + area.height,
        [&](std::int32_t y) { return intersect(shapeRow(kind, size, y), columns); },
        [&](std::int32_t top, Span row, std::int32_t height) {
            if (!row.empty())
                visit(Rect{row.begin, top, row.length(), height});
        });
}

// The same as visitFill for a stroke along the inside of the outline. Nothing when the pen is below one pixel
// wide.
template <typename Visit>
void visitStroke(ShapeKind kind, Size size, std::int32_t penWidth, const Rect& visible, Visit&& visit)
{
    const Rect area = intersection(visible, {0, 0, size.width, size.height});
    if (penWidth < 1 || isEmpty(area))
        return;
    const std::int32_t pen = limitedLength(penWidth);
    if (isUpright(kind)) {
        const Rect inner = intersection(area, {pen, pen, size.width - 2 * pen, size.height - 2 * pen});
        return isEmpty(inner) ? visit(area) : visitFrame(area, inner, visit);
    }
    using Rows = std::pair<Span, Span>; // the shape's pixels and those that the stroke leaves free
    const Span columns{area.x, area.x + area.width};
    const auto put = [&](std::int32_t top, Span run, std::int32_t height) {
        const Span cut = intersect(run, columns);
        if (!cut.empty())
            visit(Rect{cut.begin, top, cut.length(), height});
    };
    visitAlikeRows(
        area.y, area.y + area.height,
        [&](std::int32_t y) {
            return Rows{shapeRow(kind, size, y), innerRow(kind, size, pen, y)};
        },
        [&](std::int32_t top, const Rows& rows, std::int32_t height) {
            const auto& [row, inner] = rows;
            put(top, inner.empty() ? row : Span{row.begin, inner.begin}, height);
            if (!inner.empty())
                put(top, {inner.end, row.end}, height);
        });
}

} // namespace vela
