#include "vela/render/layers/gradient.h"

#include "tests/render/layers/layer_testing.h"

#include <cmath>

namespace vela {
namespace {

double axisByFormula(GradientDirection direction, double u, double v)
{
    switch (direction) {
    case GradientDirection::Vertical: return v;
    case GradientDirection::VerticalUp: return 1 - v;
    case GradientDirection::Horizontal: return u;
    case GradientDirection::HorizontalLeft: return 1 - u;
    case GradientDirection::DiagonalDown: return (u + v) / 2;
    case GradientDirection::DiagonalDownReverse: return 1 - (u + v) / 2;
    case GradientDirection::DiagonalUp: return ((1 - v) + u) / 2;
    case GradientDirection::DiagonalUpReverse: return 1 - ((1 - v) + u) / 2;
    }
    return v;
}

double gradientByFormula(GradientKind kind, GradientDirection direction, double u, double v)
{
    const double axis = axisByFormula(direction, u, v);
    const double pi = std::acos(-1.0);
    switch (kind) {
    case GradientKind::Linear: return axis;
    case GradientKind::Reflected: return 1 - std::abs(2 * axis - 1);
    case GradientKind::Radial: return std::min(1.0, std::hypot(u - 0.5, v - 0.5) / std::sqrt(0.5));
    case GradientKind::Diamond: return std::min(1.0, 2 * (std::abs(u - 0.5) + std::abs(v - 0.5)));
    case GradientKind::Conic: break;
    }
    const double turn = (std::atan2(v - 0.5, u - 0.5) + pi) / (2 * pi);
    return static_cast<int>(direction) % 2 == 1 ? 1 - turn : turn;
}

double channelAt(const SurfaceStyle& style, std::uint8_t (*channel)(Color), double t)
{
    const double start = channel(style.gradientStart);
    const double middle = channel(style.gradientMid);
    const double end = channel(style.gradientEnd);
    if (!style.useGradientMid)
        return start + (end - start) * t;
    return t <= 0.5 ? start + (middle - start) * 2 * t : middle + (end - middle) * 2 * (t - 0.5);
}

Pixel gradientPixel(const SurfaceStyle& style, double t)
{
    const auto channel = [&](std::uint8_t (*of)(Color)) {
        return static_cast<unsigned>(std::lround(channelAt(style, of, t)) * style.opacity / 255);
    };
    return makePixel(channel([](Color c) { return redOf(c); }), channel([](Color c) { return greenOf(c); }),
                     channel([](Color c) { return blueOf(c); }), style.opacity);
}

SurfaceStyle gradientStyle(int kind, int direction, bool middle)
{
    SurfaceStyle style;
    style.gradientKind = static_cast<GradientKind>(kind);
    style.gradientDirection = static_cast<GradientDirection>(direction);
    style.useGradientMid = middle;
    style.gradientStart = hexColor(0x00FF40);
    style.gradientMid = hexColor(0xFF2000);
    style.gradientEnd = hexColor(0x0840FF);
    style.opacity = middle ? 240 : 255;
    return style;
}

TEST(Gradient, EveryKindAndDirectionFollowsItsFormula)
{
    for (int kind = 0; kind < 5; ++kind)
        for (int direction = 0; direction < 8; ++direction)
            for (const LayerCase& layer : layerCases()) {
                const ShapeKind shape = kAllShapes[static_cast<std::size_t>(kind + direction) % 9];
                SCOPED_TRACE(nameOf(shape, layer) + " kind " + std::to_string(kind) + " direction " +
                             std::to_string(direction));
                const SurfaceStyle style = gradientStyle(kind, direction, (direction & 2) != 0);
                const Picture picture = drawLayer(layer.visible, [&](const LayerTarget& target) {
                    fillGradient(target, {shape, layer.size}, style);
                });
                EXPECT_TRUE(matches(picture, layer.visible, 1, [&](std::int32_t x, std::int32_t y) {
                    const double u = positionIn(x, layer.size.width);
                    const double v = positionIn(y, layer.size.height);
                    const double t = gradientByFormula(style.gradientKind, style.gradientDirection, u, v);
                    EXPECT_NEAR(gradientParameter(style.gradientKind, style.gradientDirection, x, y,
                                                  layer.size.width, layer.size.height),
                                t, 1e-12);
                    return covers(shape, layer.size, x, y) ? gradientPixel(style, t) : 0U;
                }));
            }
}

TEST(Gradient, UnknownKindsAndDirectionsAreLinearAndVertical)
{
    const auto kind = static_cast<GradientKind>(9);
    const auto direction = static_cast<GradientDirection>(11);
    EXPECT_DOUBLE_EQ(gradientParameter(kind, GradientDirection::Horizontal, 3, 0, 5, 9), 0.75);
    EXPECT_DOUBLE_EQ(gradientParameter(GradientKind::Linear, direction, 0, 6, 5, 9), 0.75);
    EXPECT_DOUBLE_EQ(gradientParameter(GradientKind::Conic, GradientDirection::Horizontal, 4, 2, 5, 5), 0.5);
    EXPECT_DOUBLE_EQ(gradientParameter(GradientKind::Conic, GradientDirection::Horizontal, 2, 4, 5, 5), 0.75);
    EXPECT_DOUBLE_EQ(gradientParameter(GradientKind::Conic, GradientDirection::HorizontalLeft, 2, 4, 5, 5),
                     0.25);
}

} // namespace
} // namespace vela
