#include "vela/render/shapes/shape_rects.h"

#include "vela/render/shapes/shape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
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

constexpr int kKindsAndOneUnknown = 10;
constexpr Rect kNowhere{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
constexpr Size kSizes[] = {{1, 1},  {2, 1},  {1, 7},   {3, 3},   {5, 4},   {8, 8},    {9, 20},
                           {13, 5}, {40, 9}, {24, 24}, {25, 60}, {61, 24}, {100, 40}, {97, 98}};

Rect wholeOf(Size size) { return {0, 0, size.width, size.height}; }

TEST(ShapeRects, TheFillIsTheMask)
{
    for (int kind = 0; kind < kKindsAndOneUnknown; ++kind) {
        for (const Size size : kSizes) {
            Tally tally(size);
            visitFill(static_cast<ShapeKind>(kind), size, wholeOf(size), tally);
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
    for (int kind = 0; kind < kKindsAndOneUnknown; ++kind) {
        for (const Size size : kSizes) {
            for (const std::int32_t pen : {1, 2, 3, 25}) {
                Tally tally(size);
                visitStroke(static_cast<ShapeKind>(kind), size, pen, wholeOf(size), tally);
                for (std::int32_t y = -1; y <= size.height; ++y)
                    for (std::int32_t x = -1; x <= size.width; ++x)
                        ASSERT_EQ(tally.at(x, y), isStroked(static_cast<ShapeKind>(kind), size, pen, {x, y}))
                            << kind << ' ' << size.width << 'x' << size.height << " pen " << pen << " at "
                            << x << ',' << y;
            }
        }
    }
}

// The rows that a disc around the pixel reaches, every one of them asked.
Span plainInnerRow(const std::vector<Span>& rows, std::int32_t width, std::int32_t penWidth, std::int32_t y)
{
    Span inner{0, width};
    for (std::int32_t distance = -penWidth; distance <= penWidth; ++distance) {
        if (y + distance < 0 || y + distance >= static_cast<std::int32_t>(rows.size()))
            return {};
        const Span row = rows[static_cast<std::size_t>(y + distance)];
        const auto reach = static_cast<std::int32_t>(std::sqrt(penWidth * penWidth - distance * distance));
        inner = row.empty() ? Span{} : intersect(inner, {row.begin + reach, row.end - reach});
    }
    return inner.empty() ? Span{} : inner;
}

TEST(ShapeRects, WhatAStrokeLeavesFreeIsTheSameWhicheverRowsAreAsked)
{
    for (int value = 0; value < kKindsAndOneUnknown; ++value)
        for (std::int32_t width = 1; width <= 60; ++width)
            for (std::int32_t height = 1 + width % 3; height <= 60; height += 3) {
                const auto kind = static_cast<ShapeKind>(value);
                std::vector<Span> rows;
                for (std::int32_t y = 0; y < height; ++y)
                    rows.push_back(shapeRow(kind, {width, height}, y));
                // Beyond half of a side every pen leaves nothing; one of each size still shows it.
                const std::int32_t widest = std::min(width, height) / 2 + 1;
                for (std::int32_t pen = 1; pen <= 70; pen = pen < widest || pen > 69 ? pen + 1 : 70)
                    for (std::int32_t y = 0; y < height; ++y)
                        ASSERT_EQ(innerRow(kind, {width, height}, pen, y), plainInnerRow(rows, width, pen, y))
                            << value << ' ' << width << 'x' << height << " pen " << pen << " row " << y;
            }
}

// What a part shows is what the whole has there.
TEST(ShapeRects, APartShowsTheWholesPixels)
{
    std::mt19937 random(71);
    const auto upTo = [&](std::int32_t most) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(most + 1));
    };
    for (int round = 0; round < 2000; ++round) {
        const auto kind = static_cast<ShapeKind>(round % kKindsAndOneUnknown);
        const Size size{1 + upTo(60), 1 + upTo(60)};
        const Rect part{upTo(60) - 10, upTo(60) - 10, upTo(50), upTo(50)};
        const std::int32_t pen = upTo(12);
        Tally fill(size), fillPart(size), stroke(size), strokePart(size);
        visitFill(kind, size, kNowhere, [](const Rect&) { FAIL() << "nothing of it is to be seen"; });
        visitFill(kind, size, wholeOf(size), fill);
        visitFill(kind, size, part, fillPart);
        visitStroke(kind, size, pen, wholeOf(size), stroke);
        visitStroke(kind, size, pen, part, strokePart);
        for (std::int32_t y = -1; y <= size.height; ++y)
            for (std::int32_t x = -1; x <= size.width; ++x) {
                const bool seen = !isEmpty(intersection(part, {x, y, 1, 1}));
                ASSERT_EQ(fillPart.at(x, y), seen ? fill.at(x, y) : 0);
                ASSERT_EQ(strokePart.at(x, y), seen ? stroke.at(x, y) : 0);
            }
    }
}

TEST(ShapeRects, NothingIsDrawnWithoutSizeOrPen)
{
    int rects = 0;
    const auto count = [&](const Rect&) { ++rects; };
    for (const Size size : {Size{0, 5}, Size{5, 0}, Size{-3, 4}}) {
        visitFill(ShapeKind::Pill, size, {0, 0, 9, 9}, count);
        visitStroke(ShapeKind::Pill, size, 1, {0, 0, 9, 9}, count);
    }
    visitStroke(ShapeKind::Pill, {20, 10}, 0, {0, 0, 20, 10}, count);
    visitStroke(ShapeKind::Pill, {20, 10}, -1, {0, 0, 20, 10}, count);
    visitStroke(ShapeKind::Pill, {20, 10}, 1, {20, 0, 5, 5}, count);
    EXPECT_EQ(rects, 0);
}

// A rectangle is one call, its stroke four; a round rectangle's straight middle is one, not one a row.
TEST(ShapeRects, RowsThatAreAlikeComeTogether)
{
    const auto fills = [](ShapeKind kind, Size size) {
        int rects = 0;
        visitFill(kind, size, wholeOf(size), [&](const Rect&) { ++rects; });
        return rects;
    };
    const auto strokes = [](ShapeKind kind, Size size, std::int32_t pen) {
        int rects = 0;
        visitStroke(kind, size, pen, wholeOf(size), [&](const Rect&) { ++rects; });
        return rects;
    };
    EXPECT_LE(fills(ShapeKind::RoundedRect, {200, 400}), 25);
    for (const Size size : {Size{200, 400}, Size{INT32_MAX, INT32_MAX}}) {
        EXPECT_EQ(fills(ShapeKind::Rect, size), 1);
        EXPECT_EQ(strokes(ShapeKind::Rect, size, 3), 4);
    }
    EXPECT_EQ(strokes(ShapeKind::Rect, {200, 5}, 3), 1);
}

// Whatever numbers a skin names, only what can be seen is walked: this ends at once.
TEST(ShapeRects, WildLengthsCostNoMoreThanWhatIsSeen)
{
    constexpr std::int32_t kMost = INT32_MAX;
    std::int64_t pixels = 0;
    const auto count = [&](const Rect& rect) { pixels += std::int64_t{rect.width} * rect.height; };
    for (int value = 0; value < kKindsAndOneUnknown; ++value)
        for (const Size size : {Size{kMost, kMost}, Size{kMost, 64}, Size{64, kMost}})
            for (const Point corner : {Point{0, 0}, Point{size.width / 2, size.height / 2},
                                       Point{size.width - 64, size.height / 3}}) {
                const auto kind = static_cast<ShapeKind>(value);
                const Rect window{corner.x, corner.y, 64, 64};
                pixels = 0;
                visitFill(kind, size, window, count);
                const std::int64_t filled = pixels;
                EXPECT_LE(filled, 64 * 64);
                for (const std::int32_t pen : {1, 60, 30'000, 1 << 20, kMost}) {
                    pixels = 0;
                    visitStroke(kind, size, pen, window, count);
                    EXPECT_LE(pixels, filled);
                }
            }
}

} // namespace
} // namespace vela
