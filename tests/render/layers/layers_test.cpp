// Each layer is held against the same layer computed pixel by pixel from its formulas.
#include "tests/render/layers/layer_testing.h"
#include "vela/render/layers/gradient.h"
#include "vela/render/layers/inner_shadow.h"
#include "vela/render/layers/noise.h"
#include "vela/render/layers/solid_layer.h"
#include "vela/render/pixels/surface_mapping.h"

#include <cmath>

namespace vela {
namespace {

// Calls test(shape, case) for every combination.
template <typename Test>
void forEveryShape(Test&& test)
{
    for (const ShapeKind shape : kAllShapes)
        for (const LayerCase& layer : layerCases()) {
            SCOPED_TRACE(nameOf(shape, layer));
            test(shape, layer);
        }
}

bool covers(ShapeKind shape, Size size, std::int32_t x, std::int32_t y)
{
    return pointInShape(shape, size.width, size.height, {x, y});
}

TEST(SolidLayer, IsOnePremultipliedColourWithinTheShape)
{
    forEveryShape([](ShapeKind shape, const LayerCase& layer) {
        const Picture picture = drawLayer(layer.visible, [&](const LayerTarget& target) {
            fillSolid(target, {shape, layer.size}, hexColor(0xFF8001), 100);
        });
        EXPECT_TRUE(matches(picture, layer.visible, 0, [&](std::int32_t x, std::int32_t y) {
            return covers(shape, layer.size, x, y) ? 0x64643200U
                                                   : 0U; // 255, 128 and 1 times 100/255, rounded down
        }));
    });
}

TEST(SolidLayer, FollowsEveryRunOfAMask)
{
    RunMask mask({6, 3});
    mask.addRun({0, 1});
    mask.addRun({3, 5});
    mask.endRow();
    mask.endRow();
    mask.addRun({2, 6});
    mask.endRow();
    const Picture picture = drawLayer({1, 0, 4, 3}, [&](const LayerTarget& target) {
        fillSolid(target, Coverage(mask), hexColor(0xFFFFFF), 255);
    });
    const Pixel o = 0, w = 0xFFFFFFFF;
    EXPECT_EQ(picture.pixels, (std::vector<Pixel>{o, o, w, w, o, o, o, o, o, w, w, w}));
}

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

double positionIn(std::int32_t at, std::int32_t length)
{
    return length > 1 ? double(at) / (length - 1) : 0.0;
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

std::uint32_t noiseByFormula(std::uint32_t px, std::uint32_t py, std::uint32_t s)
{
    const std::uint32_t h1 = (px + ((s << 6) + (s >> 2) + 0x9E3779B9U)) ^ s;
    std::uint32_t h = (py + ((h1 << 6) + (h1 >> 2) + 0x85EBCA6BU)) ^ h1;
    h ^= h >> 16;
    h *= 0x7FEB352DU;
    h ^= h >> 15;
    h *= 0x846CA68BU;
    h ^= h >> 16;
    return h & 0xFF;
}

TEST(Noise, IsTheHashOfSeedAndPositionExactly)
{
    SurfaceStyle style;
    style.noise = hexColor(0xC08040);
    for (const std::uint32_t seed : {0U, 1U, 0xFFFFFFF0U})
        for (const std::uint8_t opacity : {std::uint8_t{0}, std::uint8_t{12}, std::uint8_t{255}})
            forEveryShape([&](ShapeKind shape, const LayerCase& layer) {
                style.noiseSeed = seed;
                style.noiseOpacity = opacity;
                const Picture picture = drawLayer(layer.visible, [&](const LayerTarget& target) {
                    fillNoise(target, {shape, layer.size}, style, {40, 50});
                });
                EXPECT_TRUE(matches(picture, layer.visible, 0, [&](std::int32_t x, std::int32_t y) {
                    const unsigned a =
                        noiseByFormula(static_cast<unsigned>(x), static_cast<unsigned>(y), seed) * opacity /
                        255;
                    const Pixel grain = makePixel(0xC0 * a / 255, 0x80 * a / 255, 0x40 * a / 255, a);
                    return covers(shape, layer.size, x, y) ? grain : 0U;
                }));
            });
}

TEST(Noise, ContinuesAcrossSurfacesWhenMappedToTheWindow)
{
    SurfaceStyle style;
    style.noiseOpacity = 255;
    style.uvMapping = MappingSpace::Global;
    style.uvOffsetX = -100;
    const Rect left{0, 0, 20, 8};
    const auto grainAt = [&](Point origin) {
        return drawLayer(left, [&](const LayerTarget& target) {
            fillNoise(target, {ShapeKind::Rect, {20, 8}}, style, origin);
        });
    };
    const Picture here = grainAt({5, 3});
    const Picture further = grainAt({10, 4});
    for (std::int32_t y = 0; y < 7; ++y)
        for (std::int32_t x = 0; x < 15; ++x)
            ASSERT_EQ(further.at(x, y), here.at(x + 5, y + 1));
    // uvOffsetX + origin + x is negative here; the hash takes it modulo 2^32.
    EXPECT_EQ(alphaOf(here.at(0, 0)), noiseByFormula(static_cast<std::uint32_t>(-95), 3, style.noiseSeed));
}

TEST(SurfaceMapping, FoldsTexturesBackAndForthInTheWindow)
{
    SurfaceMapping mapping;
    mapping.uvScale = 10;
    mapping.uvOffsetX = 3;
    mapping.uvOffsetY = -7;
    EXPECT_EQ(mapSurfacePoint(mapping, {100, 100}, 4, 5), (MappedPoint{{4, 5}, {4, 5}}));
    mapping.uvMapping = MappingSpace::Global;
    const struct {
        Point origin;
        MappedPoint mapped; // of the pixel 4, 5
    } rows[] = {
        {{0, 0}, {{7, -2}, {7, 2}}},    {{3, 12}, {{10, 10}, {10, 10}}},   {{4, 13}, {{11, 11}, {9, 9}}},
        {{13, 22}, {{20, 20}, {0, 0}}}, {{-28, -9}, {{-21, -11}, {1, 9}}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(mapSurfacePoint(mapping, row.origin, 4, 5), row.mapped);
    mapping.uvScale = 0; // the smallest tile is 8
    EXPECT_EQ(mapSurfacePoint(mapping, {6, 7}, 0, 0).texture, (Point{7, 0}));
}

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
