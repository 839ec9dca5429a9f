#include "vela/render/shapes/shape.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vela {
namespace {

ShapeKind kindAt(int value) { return static_cast<ShapeKind>(value); }

// One row of text per pixel row: '#' inside, '.' outside.
std::vector<std::string> drawn(ShapeKind kind, std::int32_t width, std::int32_t height)
{
    std::vector<std::string> rows(static_cast<std::size_t>(height));
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x)
            rows[static_cast<std::size_t>(y)] += pointInShape(kind, width, height, {x, y}) ? '#' : '.';
    return rows;
}

TEST(Shape, RadiiCutsAndInsetsFollowFromTheSize)
{
    const struct {
        std::int32_t width, height, radius, rounded, pill, bevel, octagon, inset;
    } rows[] = {
        {0, 0, 4, 1, 1, 1, 1, 1},         {1, 1, 4, 1, 1, 1, 1, 1},
        {3, 3, 4, 3, 3, 1, 1, 1},         {10, 10, 4, 8, 10, 2, 3, 2},
        {200, 30, 7, 14, 30, 6, 10, 15},  {200, 100, 12, 24, 100, 20, 33, 50},
        {100, 40, 10, 20, 40, 8, 13, 20}, {40, 100, 10, 20, 40, 8, 13, 10},
        {5, 90, 4, 5, 5, 1, 1, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.width) + "x" + std::to_string(row.height));
        EXPECT_EQ(cornerRadius(row.width, row.height), row.radius);
        EXPECT_EQ(roundedDiameter(row.width, row.height), row.rounded);
        EXPECT_EQ(cornerDiameter(ShapeKind::Pill, row.width, row.height), row.pill);
        EXPECT_EQ(cornerCut(ShapeKind::Bevel, row.width, row.height), row.bevel);
        EXPECT_EQ(cornerCut(ShapeKind::Octagon, row.width, row.height), row.octagon);
        EXPECT_EQ(shapeInset(row.width, row.height), row.inset);
    }
    EXPECT_EQ(cornerDiameter(ShapeKind::Rect, 100, 40), 0);
    EXPECT_EQ(cornerCut(ShapeKind::Hexagon, 100, 40), 0);
}

TEST(Shape, PolygonsRunClockwiseFromTheTopLeftMostCorner)
{
    const Rect rect{10, 20, 100, 40};
    const struct {
        int kind;
        std::vector<Point> corners;
    } rows[] = {
        {0, {}},
        {1, {}},
        {2, {}},
        {3, {{60, 20}, {110, 40}, {60, 60}, {10, 40}}},
        {4, {{18, 20}, {102, 20}, {110, 28}, {110, 52}, {102, 60}, {18, 60}, {10, 52}, {10, 28}}},
        {5, {{23, 20}, {97, 20}, {110, 33}, {110, 47}, {97, 60}, {23, 60}, {10, 47}, {10, 33}}},
        {6, {{30, 20}, {90, 20}, {110, 40}, {90, 60}, {30, 60}, {10, 40}}},
        {7, {{30, 20}, {110, 20}, {90, 60}, {10, 60}}},
        {8, {{10, 20}, {90, 20}, {110, 60}, {30, 60}}},
        {9, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(shapePolygon(kindAt(row.kind), rect), row.corners) << row.kind;
}

// Worked out by hand from the definition of each kind.
TEST(Shape, SmallMasksAreWhatTheDefinitionSays)
{
    using Rows = std::vector<std::string>;
    EXPECT_EQ(drawn(ShapeKind::RoundedRect, 5, 5), (Rows{".###.", "#####", "#####", "#####", ".###."}));
    EXPECT_EQ(drawn(ShapeKind::Pill, 6, 2), (Rows{".#####", "######"}));
    EXPECT_EQ(drawn(ShapeKind::Pill, 1, 1), (Rows{"."}));
    EXPECT_EQ(drawn(ShapeKind::Diamond, 5, 5), (Rows{"..#..", ".###.", "#####", ".###.", "..#.."}));
    EXPECT_EQ(drawn(ShapeKind::Bevel, 3, 3), (Rows{".#.", "###", ".#."}));
    EXPECT_EQ(drawn(ShapeKind::Octagon, 6, 6),
              (Rows{"..##..", ".####.", "######", "######", ".####.", "..##.."}));
    EXPECT_EQ(drawn(ShapeKind::Hexagon, 8, 3), (Rows{".######.", "########", ".######."}));
    EXPECT_EQ(drawn(ShapeKind::SlantRight, 8, 5),
              (Rows{"..######", ".#######", ".######.", "#######.", "######.."}));
    EXPECT_EQ(drawn(ShapeKind::SlantLeft, 8, 5),
              (Rows{"######..", "#######.", ".######.", ".#######", "..######"}));
    EXPECT_EQ(drawn(kindAt(9), 3, 2), (Rows{"###", "###"}));
    EXPECT_FALSE(pointInShape(ShapeKind::Rect, 3, 2, {3, 0}));
    EXPECT_FALSE(pointInShape(ShapeKind::Rect, 3, 2, {0, -1}));
}

TEST(Shape, RoundedButtonLosesItsFourCornerPixels)
{
    for (const Point corner : {Point{0, 0}, {199, 0}, {0, 39}, {199, 39}})
        EXPECT_FALSE(pointInShape(ShapeKind::RoundedRect, 200, 40, corner));
    EXPECT_TRUE(pointInShape(ShapeKind::RoundedRect, 200, 40, {100, 0}));
}

} // namespace
} // namespace vela
