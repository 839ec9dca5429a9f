#include "vela/render/shapes/antialias.h"

#include "tests/render/layers/layer_testing.h"
#include "vela/render/layers/solid_layer.h"

#include <cmath>

namespace vela {
namespace {

constexpr Color kWhite = hexColor(0xFFFFFF);

TEST(AntialiasedShapes, CoverTheAreaTheyEnclose)
{
    const double pi = std::acos(-1.0);
    const struct {
        ShapeKind kind;
        Size size;
        double area;
    } rows[] = {
        {ShapeKind::Rect, {20, 12}, 240},
        {ShapeKind::Pill, {20, 20}, 100 * pi},
        {ShapeKind::Pill, {50, 20}, 30 * 20 + 100 * pi},
        {ShapeKind::RoundedRect, {60, 40}, 60 * 40 - 100 * (4 - pi)}, // corners of radius 10
        {ShapeKind::Diamond, {40, 30}, 600},
        {ShapeKind::Octagon, {30, 30}, 900 - 2 * 100},
    };
    for (const auto& row : rows) {
        const Rect inside{2, 2, row.size.width, row.size.height};
        const Picture filled =
            drawLayer({0, 0, row.size.width + 4, row.size.height + 4}, [&](const LayerTarget& target) {
                fillSolid(target, {ShapeKind::Rect, target.view.size}, kWhite, 255);
                cutToShape(target, row.kind, inside);
            });
        EXPECT_NEAR(coveredArea(filled), row.area, row.area * 0.012) << static_cast<int>(row.kind);
    }
    const Picture ring = drawLayer({0, 0, 44, 44}, [](const LayerTarget& target) {
        strokeAntialiased(target, ShapeKind::Pill, {2, 2, 40, 40}, 3, kWhite);
    });
    EXPECT_NEAR(coveredArea(ring), (400 - 289) * pi, 4);
    EXPECT_EQ(ring.at(22, 22), 0U);
}

TEST(AntialiasedShapes, ARingIsEverywhereAsFarFromItsShape)
{
    constexpr Rect kShape{10, 10, 100, 40}; // the slanted sides of the hexagon rise at 45 degrees
    const Picture ring = drawLayer({0, 0, 120, 60}, [&](const LayerTarget& target) {
        strokeAntialiased(target, ShapeKind::Hexagon, kShape, 3, kWhite, -5);
    });
    const auto thickness = [&](std::int32_t x, std::int32_t from, std::int32_t to) {
        double sum = 0;
        for (std::int32_t y = from; y < to; ++y)
            sum += (ring.at(x, y) >> 24) / 255.0;
        return sum;
    };
    EXPECT_EQ(thickness(60, 5, 8), 3); // above the flat side, two pixels away from it
    EXPECT_EQ(thickness(60, 0, 30), 3);
    const double diagonal = std::sqrt(2.0);
    EXPECT_NEAR(thickness(17, 0, 30), 3 * diagonal, 0.1);
    // The slanted side lies at y = 22.5 there.
    EXPECT_NEAR(thickness(17, 18, 30), 22.5 - 2 * diagonal - 18, 0.1);
}

TEST(AntialiasedShapes, AreLeftFreeDownToADepth)
{
    const Picture frame = drawLayer({0, 0, 60, 40}, [](const LayerTarget& target) {
        fillDownTo(target, ShapeKind::Octagon, {0, 0, 60, 40}, 4, kWhite);
    });
    EXPECT_EQ(frame.at(0, 0), 0xFFFFFFFFU); // beyond the outline too, for whoever cuts it
    EXPECT_EQ(frame.at(30, 3), 0xFFFFFFFFU);
    EXPECT_EQ(frame.at(30, 4), 0U);
    EXPECT_EQ(frame.at(30, 36), 0xFFFFFFFFU);
}

TEST(Progress, EndsAtAFractionOfAPixel)
{
    const Rect bar{0, 0, 40, 6};
    const auto filledTo = [&](ShapeKind kind, float end) {
        return drawLayer(bar, [&](const LayerTarget& target) {
            fillSolid(target, {kind, sizeOf(bar)}, kWhite, 255);
            cutToProgress(target, kind, bar, end);
        });
    };
    const Picture rect = filledTo(ShapeKind::Rect, 12.25F);
    EXPECT_EQ(rect.at(11, 3), 0xFFFFFFFF);
    EXPECT_EQ(rect.at(12, 3), 0x3F3F3F3FU); // a quarter
    EXPECT_EQ(rect.at(13, 3), 0U);
    double before = -1;
    for (float end = 0; end <= 40; end += 0.5F) {
        const double area = coveredArea(filledTo(ShapeKind::Pill, end));
        EXPECT_GE(area, before) << end;
        before = area;
    }
    EXPECT_EQ(coveredArea(filledTo(ShapeKind::Rect, 0)), 0);
    EXPECT_EQ(coveredArea(filledTo(ShapeKind::Rect, 40)), 240);
}

} // namespace
} // namespace vela
