#include "vela/render/shapes/shape_rows.h"

#include "vela/render/shapes/shape.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace vela {
namespace {

constexpr int kKindsAndOneUnknown = 10;

ShapeKind kindAt(int value) { return static_cast<ShapeKind>(value); }

// Empty when every row of the fast form is the definition's; else the first place where they part.
std::string firstDifference(ShapeKind kind, Size size)
{
    for (std::int32_t y = 0; y < size.height; ++y) {
        const Span row = shapeRow(kind, size, y);
        for (std::int32_t x = 0; x < size.width; ++x)
            if (pointInShape(kind, size.width, size.height, {x, y}) != (row.begin <= x && x < row.end))
                return "kind " + std::to_string(static_cast<int>(kind)) + " size " +
                       std::to_string(size.width) + "x" + std::to_string(size.height) + " at " +
                       std::to_string(x) + "," + std::to_string(y);
    }
    return {};
}

TEST(ShapeRows, AreTheDefinitionForEverySmallSize)
{
    for (int kind = 0; kind < kKindsAndOneUnknown; ++kind)
        for (std::int32_t width = 0; width <= 96; ++width)
            for (std::int32_t height = 0; height <= 96; ++height)
                ASSERT_EQ(firstDifference(kindAt(kind), {width, height}), "");
}

TEST(ShapeRows, AreTheDefinitionForASampleOfLargeSizes)
{
    std::mt19937 random(20260);
    for (int round = 0; round < 4; ++round)
        for (int kind = 0; kind < kKindsAndOneUnknown; ++kind) {
            const Size size{static_cast<std::int32_t>(random() % 2000 + 1),
                            static_cast<std::int32_t>(random() % 400 + 1)};
            ASSERT_EQ(firstDifference(kindAt(kind), size), "");
        }
}

TEST(ShapeRows, LieInsideTheShapeAndAreEmptyOutsideIt)
{
    EXPECT_TRUE(shapeRow(ShapeKind::Rect, {10, 4}, 4).empty());
    EXPECT_TRUE(shapeRow(ShapeKind::Rect, {10, 4}, -1).empty());
    EXPECT_EQ(shapeRow(ShapeKind::Rect, {10, 4}, 3), (Span{0, 10}));
}

} // namespace
} // namespace vela
