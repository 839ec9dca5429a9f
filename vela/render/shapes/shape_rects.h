// A shape as a few upright rectangles, for drawing it with calls that only know those. GDI's own round
// rectangles and polygons cover other pixels than the mask of the pixel layers, and other ones on each
// system; made from the mask's rows, fill and stroke meet it pixel for pixel.
#pragma once

#include "vela/render/shapes/shape_rows.h"

namespace vela {

// The pixels of one row whose distance to the nearest pixel outside the shape is greater than the pen is
// wide: what a stroke of that width, drawn along the inside of the outline, leaves free.
Span innerRow(ShapeKind kind, Size size, std::int32_t penWidth, std::int32_t y) noexcept;

// Calls visit(Rect), in the shape's own coordinates, for disjoint rectangles that together are the shape.
// Rows that are alike come as one.
template <typename Visit>
void visitFill(ShapeKind kind, Size size, Visit&& visit)
{
    for (std::int32_t top = 0, y = 1; top < size.height; top = y++) {
        const Span row = shapeRow(kind, size, top);
        while (y < size.height && shapeRow(kind, size, y) == row)
            ++y;
        if (!row.empty())
            visit(Rect{row.begin, top, row.length(), y - top});
    }
}

// The same for a stroke along the inside of the outline. Nothing when the pen is below one pixel wide.
template <typename Visit>
void visitStroke(ShapeKind kind, Size size, std::int32_t penWidth, Visit&& visit)
{
    if (penWidth < 1)
        return;
    const auto both = [&](std::int32_t y) {
        return std::pair{shapeRow(kind, size, y), innerRow(kind, size, penWidth, y)};
    };
    for (std::int32_t top = 0, y = 1; top < size.height; top = y++) {
        const auto [row, inner] = both(top);
        while (y < size.height && both(y) == std::pair{row, inner})
            ++y;
        if (inner.empty()) {
            if (!row.empty())
                visit(Rect{row.begin, top, row.length(), y - top});
            continue;
        }
        visit(Rect{row.begin, top, inner.begin - row.begin, y - top});
        visit(Rect{inner.end, top, row.end - inner.end, y - top});
    }
}

} // namespace vela
