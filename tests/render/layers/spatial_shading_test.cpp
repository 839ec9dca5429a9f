#include "vela/render/layers/spatial_shading.h"

#include "tests/render/layers/layer_testing.h"

namespace vela {
namespace {

Picture shaded(ShapeKind shape, Size size, const SurfaceStyle& style)
{
    return drawLayer({0, 0, size.width, size.height}, [&](const LayerTarget& target) {
        fillSpatialShading(target, {shape, size}, style);
    });
}

// Above 0 for light, below for shade: the tint is white, so light shows in the colour and shade only in
// alpha.
int lightAt(const Picture& picture, std::int32_t x, std::int32_t y)
{
    const Pixel pixel = picture.at(x, y);
    const int alpha = channelOf(pixel, 3);
    return channelOf(pixel, 0) * 2 > alpha ? alpha : -alpha;
}

TEST(SpatialShading, LightsTheEdgeTowardsTheLightAndShadesTheOppositeOne)
{
    const Size size{120, 60};
    const struct {
        int angle;
        int left, top, right, bottom; // sign of the light on each side
    } rows[] = {
        {225, 1, 1, -1, -1}, {270, 0, 1, 0, -1}, {90, 0, -1, 0, 1}, {0, -1, 0, 1, 0}, {-135, 1, 1, -1, -1},
    };
    for (const ShapeKind shape :
         {ShapeKind::Rect, ShapeKind::RoundedRect, ShapeKind::Bevel, ShapeKind::Octagon})
        for (const auto& row : rows) {
            SCOPED_TRACE(static_cast<int>(shape) * 1000 + row.angle);
            SurfaceStyle style;
            style.materialLightAngle = row.angle;
            const Picture picture = shaded(shape, size, style);
            const auto expectSide = [](int light, int sign) {
                if (sign > 0)
                    EXPECT_GT(light, 8);
                else if (sign < 0)
                    EXPECT_LT(light, -8);
                else
                    EXPECT_LT(light, 8); // a side along the light turns away from it a little
            };
            expectSide(lightAt(picture, 0, 30), row.left);
            expectSide(lightAt(picture, 60, 0), row.top);
            expectSide(lightAt(picture, 119, 30), row.right);
            expectSide(lightAt(picture, 60, 59), row.bottom);
            EXPECT_NEAR(lightAt(picture, 60, 30), 0, 1);
        }
}

TEST(SpatialShading, FollowsTheShape)
{
    const SurfaceStyle style; // lit from the upper left
    const Picture diamond = shaded(ShapeKind::Diamond, {80, 80}, style);
    EXPECT_GT(lightAt(diamond, 21, 21), 8);
    EXPECT_LT(lightAt(diamond, 58, 58), -8);
    const Picture pill = shaded(ShapeKind::Pill, {120, 40}, style);
    EXPECT_GT(lightAt(pill, 7, 7), 8); // on the round end, where a rectangle's edge is far
    EXPECT_LT(lightAt(pill, 112, 32), -8);
    for (const ShapeKind shape : kAllShapes) {
        const Picture picture = shaded(shape, {61, 33}, style);
        EXPECT_TRUE(matches(picture, {0, 0, 61, 33}, 255, [&](std::int32_t x, std::int32_t y) {
            EXPECT_TRUE(pointInShape(shape, 61, 33, {x, y}) || picture.at(x, y) == 0U);
            return 0U;
        }));
    }
}

TEST(SpatialShading, GrowsWithDepthAndIsNothingOnAFlatSurface)
{
    const Size size{120, 60};
    SurfaceStyle style;
    int before = 0;
    for (const std::uint8_t depth : {std::uint8_t{24}, std::uint8_t{96}, std::uint8_t{255}}) {
        style.materialDepth = depth;
        const int shade = -lightAt(shaded(ShapeKind::RoundedRect, size, style), 60, 59);
        EXPECT_GT(shade, before);
        before = shade;
    }
    style.materialDepth = 0;
    EXPECT_FALSE(castsSpatialShading(style));
    const Picture flat = shaded(ShapeKind::RoundedRect, size, style);
    EXPECT_TRUE(std::all_of(flat.pixels.begin(), flat.pixels.end(), [](Pixel pixel) { return pixel == 0; }));
}

TEST(SpatialShading, PartsOfASurfaceFitTogether)
{
    const Size size{90, 50};
    const SurfaceStyle style;
    const Picture whole = shaded(ShapeKind::Hexagon, size, style);
    const Rect visible{17, 9, 40, 30};
    const Picture part = drawLayer(visible, [&](const LayerTarget& target) {
        fillSpatialShading(target, {ShapeKind::Hexagon, size}, style);
    });
    EXPECT_TRUE(matches(part, visible, 0, [&](std::int32_t x, std::int32_t y) { return whole.at(x, y); }));
}

} // namespace
} // namespace vela
