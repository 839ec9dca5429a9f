#include "vela/render/shapes/shape_rects.h"

#include "vela/render/shapes/shape.h"

#include <gtest/gtest.h>

#include <vector>

namespace vela {
namespace {

// How often each pixel of a shape's rectangle, with a border of one around it, was visited.
struct Tally {
    explicit Tally(Size extent)
        : size(extent), hits(static_cast<std::size_t>((size.width + 2) * (size.height + 2)))
    {
    }
    int& at(std::int32_t x, std::int32_t y)
    {
        return hits[static_cast<std::size_t>((y + 1) * (size.width + 2) + x + 1)];
    }
    void operator()(const Rect& rect)
    {
        EXPECT_FALSE(isEmpty(rect));
        for (std::int32_t y = rect.y; y < rect.y + rect.height; ++y)
            for (std::int32_t x = rect.x; x < rect.x + rect.width; ++x)
                ++at(x, y);
    }
    Size size;
    std::vector<int> hits;
};

// The plain definition: some pixel no further away than the pen is wide lies outside.
bool isStroked(ShapeKind kind, Size size, std::int32_t penWidth, Point point)
{
    if (!pointInShape(kind, size.width, size.height, point))
        return false;
    for (std::int32_t dy = -penWidth; dy <= penWidth; ++dy)
        for (std::int32_t dx = -penWidth; dx <= penWidth; ++dx)
            if (dx * dx + dy * dy <= penWidth * penWidth &&
                !pointInShape(kind, size.width, size.height, {point.x + dx, point.y + dy}))
                return true;
    return false;
}

constexpr Size kSizes[] = {{1, 1},  {2, 1},  {1, 7},   {3, 3},   {5, 4},   {8, 8},    {9, 20},
                           {13, 5}, {40, 9}, {24, 24}, {25, 60}, {61, 24}, {100, 40}, {97, 98}};

TEST(ShapeRects, TheFillIsTheMask)
{
    for (int kind = 0; kind <= 9; ++kind) {
        for (const Size size : kSizes) {
            Tally tally(size);
            visitFill(static_cast<ShapeKind>(kind), size, tally);
            for (std::int32_t y = -1; y <= size.height; ++y)
                for (std::int32_t x = -1; x <= size.width; ++x)
                    ASSERT_EQ(tally.at(x, y),
                              pointInShape(static_cast<ShapeKind>(kind), size.width, size.height, {x, y}))
                        << kind << ' ' << size.width << 'x' << size.height << " at " << x << ',' << y;
        }
    }
}

TEST(ShapeRects, TheStrokeIsTheMasksRim)
{
    for (int kind = 0; kind <= 9; ++kind) {
        for (const Size size : kSizes) {
            for (const std::int32_t pen : {1, 2, 3, 25}) {
                Tally tally(size);
                visitStroke(static_cast<ShapeKind>(kind), size, pen, tally);
                for (std::int32_t y = -1; y <= size.height; ++y)
                    for (std::int32_t x = -1; x <= size.width; ++x)
                        ASSERT_EQ(tally.at(x, y), isStroked(static_cast<ShapeKind>(kind), size, pen, {x, y}))
                            << kind << ' ' << size.width << 'x' << size.height << " pen " << pen << " at "
                            << x << ',' << y;
            }
        }
    }
}

TEST(ShapeRects, NothingIsDrawnWithoutSizeOrPen)
{
    int rects = 0;
    const auto count = [&](const Rect&) { ++rects; };
    for (const Size size : {Size{0, 5}, Size{5, 0}, Size{-3, 4}}) {
        visitFill(ShapeKind::Pill, size, count);
        visitStroke(ShapeKind::Pill, size, 1, count);
    }
    visitStroke(ShapeKind::Pill, {20, 10}, 0, count);
    visitStroke(ShapeKind::Pill, {20, 10}, -1, count);
    EXPECT_EQ(rects, 0);
}

// A round rectangle's straight middle is one rectangle, not one a row.
TEST(ShapeRects, RowsThatAreAlikeComeTogether)
{
    int rects = 0;
    visitFill(ShapeKind::RoundedRect, {200, 400}, [&](const Rect&) { ++rects; });
    EXPECT_LE(rects, 25);
}

} // namespace
} // namespace vela
