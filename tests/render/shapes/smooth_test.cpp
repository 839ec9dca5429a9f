#include "vela/render/shapes/smooth.h"

#include "tests/render/layers/layer_testing.h"
#include "vela/render/layers/solid_layer.h"

#include <cmath>

namespace vela {
namespace {

constexpr Color kWhite = hexColor(0xFFFFFF);

Picture iconPicture(Icon icon, std::int32_t side, std::int32_t dpi, std::int32_t margin = 0)
{
    const std::int32_t whole = side + 2 * margin;
    return drawLayer({0, 0, whole, whole}, [&](const LayerTarget& target) {
        drawIcon(target, icon, {margin, margin, side, side}, dpi, kWhite);
    });
}

double coveredArea(const Picture& picture)
{
    double area = 0;
    for (const Pixel pixel : picture.pixels)
        area += alphaOf(pixel) / 255.0;
    return area;
}

TEST(Icons, StraightLinesFillWholePixels)
{
    for (const std::int32_t dpi : {96, 120, 144, 168, 192, 240}) {
        SCOPED_TRACE(dpi);
        const std::int32_t side = captionIconSize(dpi);
        const std::int32_t pen = dpi < 168 ? 1 : 2;
        EXPECT_EQ(side, std::lround(10.0 * dpi / 96));
        const Picture frame = iconPicture(Icon::Maximize, side, dpi);
        for (std::int32_t at = pen; at < side - pen; ++at)
            for (std::int32_t across = 0; across < side; ++across) {
                const Pixel expected = across < pen || across >= side - pen ? 0xFFFFFFFF : 0U;
                ASSERT_EQ(frame.at(at, across), expected);
                ASSERT_EQ(frame.at(across, at), expected);
            }
    }
}

TEST(Icons, StayInTheirBoxAndLeaveAMark)
{
    for (int icon = 0; icon < kIconCount; ++icon)
        for (const std::int32_t dpi : {96, 144, 240}) {
            SCOPED_TRACE(icon * 1000 + dpi);
            const std::int32_t side = 14 * dpi / 96;
            const std::int32_t margin = 3;
            const Picture picture = iconPicture(static_cast<Icon>(icon), side, dpi, margin);
            EXPECT_GT(coveredArea(picture), side / 2.0);
            EXPECT_LT(coveredArea(picture), side * side / 2.0);
            for (std::int32_t y = 0; y < picture.size.height; ++y)
                for (std::int32_t x = 0; x < picture.size.width; ++x)
                    if (std::min(x, y) < margin || std::max(x, y) >= margin + side) {
                        ASSERT_EQ(picture.at(x, y), 0U) << x << "," << y;
                    }
        }
}

TEST(Icons, ChevronsMirrorEachOther)
{
    const std::int32_t side = 15;
    const Picture up = iconPicture(Icon::ChevronUp, side, 96);
    const Picture down = iconPicture(Icon::ChevronDown, side, 96);
    const Picture left = iconPicture(Icon::ChevronLeft, side, 96);
    for (std::int32_t y = 0; y < side; ++y)
        for (std::int32_t x = 0; x < side; ++x) {
            EXPECT_LE(largestDifference(up.at(x, y), down.at(x, side - 1 - y)), 1);
            EXPECT_LE(largestDifference(up.at(x, y), left.at(y, x)), 1);
        }
}

TEST(SmoothShapes, CoverTheAreaTheyEnclose)
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
            drawLayer({0, 0, row.size.width + 4, row.size.height + 4},
                      [&](const LayerTarget& t) { fillSmoothShape(t, row.kind, inside, kWhite); });
        EXPECT_NEAR(coveredArea(filled), row.area, row.area * 0.012) << static_cast<int>(row.kind);
    }
    const Picture ring = drawLayer({0, 0, 44, 44}, [](const LayerTarget& target) {
        strokeSmoothShape(target, ShapeKind::Pill, {2, 2, 40, 40}, 3, kWhite);
    });
    EXPECT_NEAR(coveredArea(ring), (400 - 289) * pi, 4);
    EXPECT_EQ(ring.at(22, 22), 0U);
}

TEST(SmoothShapes, ARingIsEverywhereAsFarFromItsShape)
{
    constexpr Rect kShape{10, 10, 100, 40}; // the slanted sides of the hexagon rise at 45 degrees
    const Picture ring = drawLayer({0, 0, 120, 60}, [&](const LayerTarget& target) {
        strokeSmoothShape(target, ShapeKind::Hexagon, kShape, 3, kWhite, -5);
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

TEST(SmoothShapes, TakeTheirColourAtTheStrengthAsked)
{
    const Picture badge = drawLayer({0, 0, 20, 20}, [](const LayerTarget& target) {
        fillSmoothShape(target, ShapeKind::Pill, {0, 0, 20, 20}, hexColor(0xFF8000), 100);
    });
    EXPECT_EQ(badge.at(10, 10), 0x64643200U);
    EXPECT_EQ(badge.at(0, 0), 0U);
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
