// The pixels of a shape row by row. Every shape is one run of pixels in each row (all are convex), so a layer
// asks once per row instead of once per pixel.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/vocabulary.h"

#include <algorithm>

namespace vela {

// The pixels begin, begin + 1, ..., end - 1 of one row.
struct Span {
    std::int32_t begin = 0;
    std::int32_t end = 0;
    constexpr bool empty() const noexcept { return begin >= end; }
    constexpr std::int32_t length() const noexcept { return empty() ? 0 : end - begin; }
    friend constexpr bool operator==(const Span&, const Span&) = default;
};

constexpr Span intersect(Span left, Span right) noexcept
{
    return {std::max(left.begin, right.begin), std::min(left.end, right.end)};
}

// Kinds whose every row is whole: the rectangle, and kinds that nobody knows.
constexpr bool isUpright(ShapeKind kind) noexcept
{
    return kind == ShapeKind::Rect || kind > ShapeKind::SlantLeft;
}

// Exactly the x for which pointInShape(kind, size.width, size.height, {x, y}) holds.
Span shapeRow(ShapeKind kind, Size size, std::int32_t y) noexcept;

} // namespace vela
