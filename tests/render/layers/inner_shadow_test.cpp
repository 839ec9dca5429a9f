#include "vela/render/layers/inner_shadow.h"

#include "tests/render/layers/layer_testing.h"

#include <cmath>

namespace vela {
namespace {

int stepsOut(ShapeKind shape, Size size, Point from, Point way, int limit)
{
    for (int step = 1; step <= limit; ++step)
        if (!covers(shape, size, from.x + way.x * step, from.y + way.y * step))
            return step;
    return limit + 1;
}

// Below 0 where nothing is drawn.
double shadowDistance(ShapeKind shape, Size size, int shadowSize, Point at)
{
    const int toRectangle = std::min({at.x, size.width - 1 - at.x, at.y, size.height - 1 - at.y});
    const int area = size.width * size.height;
    if (shape == ShapeKind::Rect || area >= 48001)
        return toRectangle;
    if (!covers(shape, size, at.x, at.y))
        return -1;
    if (area > 10000)
        return toRectangle;
    const int limit = std::clamp(shadowSize + 2, 3, 34);
    double distance = toRectangle;
    for (const Point way : {Point{-1, 0}, {1, 0}, {0, -1}, {0, 1}})
        distance = std::min<double>(distance, stepsOut(shape, size, at, way, limit));
    for (const Point way : {Point{-1, -1}, {1, -1}, {-1, 1}, {1, 1}})
        distance = std::min(distance, stepsOut(shape, size, at, way, limit) * 0.7071067811865476);
    return distance;
}

Pixel shadowPixel(const SurfaceStyle& style, ShapeKind shape, Size size, Point at)
{
    const double s = style.innerShadowSize;
    const double d = shadowDistance(shape, size, style.innerShadowSize, at);
    if (d < 0 || d >= s)
        return 0;
    const double u = positionIn(at.x, size.width);
    const double v = positionIn(at.y, size.height);
    const double a1 = std::pow(std::max(0.0, 1 - d / s), 1.42);
    const double a2 = std::pow(std::max(0.0, 1 - d / std::max(0.42 * s, 1.0)), 2.25);
    double e = 0;
    if (size.width > 2 * size.height && size.height <= 120)
        e = 0.22 * std::pow(std::abs(2 * v - 1), 2.35);
    else if (size.height > 2 * size.width && size.width <= 120)
        e = 0.22 * std::pow(std::abs(2 * u - 1), 2.35);
    const double value = ((0.18 * std::max(u, v) + 0.7 + 0.08 * (1 - std::min(u, v)) + e) * a1 + 0.18 * a2) *
                         style.innerShadow;
    const auto alpha = static_cast<unsigned>(std::clamp<long>(std::lround(value), 0, 255));
    return makePixel(0x40 * alpha / 255, 0x10 * alpha / 255, 0xFF * alpha / 255, alpha);
}

TEST(InnerShadow, FollowsItsFormulaInAllThreeRegimes)
{
    std::vector<LayerCase> cases = layerCases();
    cases.insert(cases.end(), {{{40, 200}, {3, 60, 30, 70}},
                               {{160, 80}, {0, 0, 160, 80}},       // follows the rectangle within the shape
                               {{400, 200}, {0, 0, 400, 200}},     // follows the rectangle alone
                               {{400, 120}, {390, 100, 10, 20}}}); // 48000: still within the shape
    SurfaceStyle style;
    style.innerShadowColor = hexColor(0x4010FF);
    for (const ShapeKind shape : kAllShapes)
        for (const LayerCase& layer : cases)
            for (const int size : {0, 1, 4, 11, 60}) {
                SCOPED_TRACE(nameOf(shape, layer) + " shadow " + std::to_string(size));
                style.innerShadowSize = size;
                style.innerShadow = size == 11 ? 255 : 90;
                const Picture picture = drawLayer(layer.visible, [&](const LayerTarget& target) {
                    fillInnerShadow(target, {shape, layer.size}, style);
                });
                EXPECT_TRUE(matches(picture, layer.visible, 1, [&](std::int32_t x, std::int32_t y) {
                    return shadowPixel(style, shape, layer.size, {x, y});
                }));
            }
}

} // namespace
} // namespace vela
