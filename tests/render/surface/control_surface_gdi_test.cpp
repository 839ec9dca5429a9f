// The surfaces of controls against the very same styles painted exactly: inside and around them the same
// pixels, along the outline smooth ones.
#include "tests/support/canvas_gdi.h"
#include "tests/support/default_skins.h"
#include "tests/support/skin_text.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/paint/paint.h"
#include "vela/render/shapes/shape.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <utility>

namespace vela {
namespace {

using testing::Canvas;

constexpr Color kGround = hexColor(0x304050);
constexpr std::int32_t kMargin = 24; // as far as any glow here reaches
constexpr Size kSizes[] = {{1, 1},   {2, 2},   {3, 1},    {1, 8},    {7, 5},    {12, 12},
                           {16, 40}, {41, 17}, {128, 34}, {34, 128}, {90, 120}, {400, 120}};

// The distance from a pixel's centre to the outline that the shape's corners describe, positive inside.
double roundedDepth(ShapeKind kind, Size size, double x, double y)
{
    const double radius = cornerDiameter(kind, size.width, size.height) / 2.0;
    const double dx = std::abs(x - size.width / 2.0) - (size.width / 2.0 - radius);
    const double dy = std::abs(y - size.height / 2.0) - (size.height / 2.0 - radius);
    return dx > 0 && dy > 0 ? radius - std::hypot(dx, dy) : radius - std::max(dx, dy);
}

double polygonDepth(const std::vector<Point>& corners, double x, double y)
{
    double nearest = std::numeric_limits<double>::max();
    bool isInside = true;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point from = corners[i];
        const Point to = corners[(i + 1) % corners.size()];
        const double dx = to.x - from.x;
        const double dy = to.y - from.y;
        const double length = std::max(dx * dx + dy * dy, 1e-9);
        const double along = std::clamp(((x - from.x) * dx + (y - from.y) * dy) / length, 0.0, 1.0);
        nearest = std::min(nearest, std::hypot(x - from.x - along * dx, y - from.y - along * dy));
        isInside = isInside && dx * (y - from.y) - dy * (x - from.x) >= 0;
    }
    return isInside ? nearest : -nearest;
}

std::vector<double> depthsOf(ShapeKind kind, Size size)
{
    const std::vector<Point> corners = shapePolygon(kind, {0, 0, size.width, size.height});
    std::vector<double> depths;
    for (std::int32_t row = -kMargin; row < size.height + kMargin; ++row)
        for (std::int32_t column = -kMargin; column < size.width + kMargin; ++column) {
            const double x = column + 0.5;
            const double y = row + 0.5;
            depths.push_back(corners.empty() ? roundedDepth(kind, size, x, y) : polygonDepth(corners, x, y));
        }
    return depths;
}

struct NamedStyle {
    std::string name;
    SurfaceStyle style;
};

SurfaceStyle bareStyle()
{
    SurfaceStyle style;
    style.drawFill = style.drawBorder = false;
    style.material = MaterialPreset::Glass;
    style.materialDepth = 0;
    style.innerShadow = 160;
    style.innerShadowSize = 6;
    style.noiseOpacity = 90;
    style.glowOpacity = 200;
    style.shadowOffsetX = 4;
    style.shadowOffsetY = -3;
    style.outlineWidth = 3;
    return style;
}

void fillAndCarve(SurfaceStyle& style)
{
    style.drawFill = true;
    style.materialDepth = 140;
}

std::vector<NamedStyle> stylesToTry()
{
    const std::pair<const char*, void (*)(SurfaceStyle&)> layers[] = {
        {"glow", [](SurfaceStyle& style) { style.showGlow = true; }},
        {"shadow", [](SurfaceStyle& style) { style.showShadow = true; }},
        {"fill", [](SurfaceStyle& style) { style.drawFill = true; }},
        {"gradient", [](SurfaceStyle& style) { style.useGradient = style.useGradientMid = true; }},
        {"border", [](SurfaceStyle& style) { style.drawBorder = true; }},
        {"material", [](SurfaceStyle& style) { style.materialEnabled = true; }},
        {"fill and shading", fillAndCarve},
        {"inner shadow", [](SurfaceStyle& style) { style.showInnerShadow = true; }},
        {"noise", [](SurfaceStyle& style) { style.useNoise = true; }},
        {"outline", [](SurfaceStyle& style) { style.showOutline = true; }},
    };
    std::vector<NamedStyle> styles;
    SurfaceStyle all = bareStyle();
    for (const auto& [name, switchOn] : layers) {
        SurfaceStyle alone = bareStyle();
        switchOn(alone);
        styles.push_back({name, alone});
        switchOn(all);
    }
    styles.push_back({"all", all});
    all.opacity = 120;
    styles.push_back({"all, translucent", all});
    for (const SkinDefinition& skin : defaultSkins()) {
        const StyleSheet sheet = buildStyleSheet(skin);
        const std::string name = narrowed(skin.id);
        styles.push_back({name + " button", sheet.find<ButtonStyle>(L"primary").surface.normal});
        styles.push_back({name + " field", sheet.find<TextInputStyle>(kDefaultVariant).surface});
        styles.push_back({name + " panel", sheet.find<PanelStyle>(kDefaultVariant).surface});
    }
    return styles;
}

bool isNearStroke(const SurfaceStyle& style, double depth)
{
    const auto isNear = [depth](double pen) { return std::abs(depth - pen) < 1.5; };
    return (style.drawBorder && isNear(1)) || (style.showOutline && isNear(style.outlineWidth));
}

class ControlSurfaceTest : public ::testing::TestWithParam<int> {};

TEST_P(ControlSurfaceTest, IsThePaintedSurfaceButForItsOutline)
{
    const auto shape = static_cast<ShapeKind>(GetParam());
    const std::vector<NamedStyle> styles = stylesToTry();
    for (const Size size : kSizes) {
        const std::vector<double> depths = depthsOf(shape, size);
        const Rect rect{kMargin, kMargin, size.width, size.height};
        const Size whole{size.width + 2 * kMargin, size.height + 2 * kMargin};
        Canvas exact(whole);
        Canvas smooth(whole);
        for (auto [name, style] : styles) {
            SCOPED_TRACE(name + ' ' + std::to_string(size.width) + 'x' + std::to_string(size.height));
            style.shape = shape;
            exact.clear(kGround);
            smooth.clear(kGround);
            paintSurface(exact.dc(), rect, style);
            paintControlSurface(smooth.dc(), rect, style);
            const std::vector<Pixel> should = exact.pixels();
            const std::vector<Pixel> is = smooth.pixels();
            for (std::size_t i = 0; i < is.size(); ++i) {
                const bool isOutside = depths[i] < -1;
                const bool isInside = depths[i] >= 1.5 && !isNearStroke(style, depths[i]);
                if (!isOutside && !isInside)
                    continue;
                ASSERT_EQ(is[i], should[i]) << "at " << static_cast<int>(i) % whole.width - kMargin << ','
                                            << static_cast<int>(i) / whole.width - kMargin;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, ControlSurfaceTest, ::testing::Range(1, 9));

// Half covered pixels show half of the face, in the colour that its last layer left there.
TEST(ControlSurfaceEdge, IsAntialiased)
{
    SurfaceStyle style;
    style.shape = ShapeKind::Pill;
    style.fill = hexColor(0xFFFFFF);
    style.border = hexColor(0xFF0000);
    style.innerShadowColor = hexColor(0x00FF00);
    style.innerShadow = 255;
    style.materialDepth = 0;
    Canvas canvas({60, 60}, hexColor(0x000000));
    paintControlSurface(canvas.dc(), {5, 5, 50, 50}, style);
    std::size_t between = 0;
    for (const Pixel pixel : canvas.pixels())
        between += pixel != 0 && pixel != 0xFF0000 && pixel != 0xFFFFFF;
    EXPECT_GT(between, 60U);
    EXPECT_EQ(canvas.at(30, 5) & 0xF0FFFF, 0xF00000U);
    // The border is the fifth layer: what falls on a surface falls on it.
    style.showInnerShadow = true;
    paintControlSurface(canvas.dc(), {5, 5, 50, 50}, style);
    EXPECT_EQ(canvas.at(30, 5) & 0xF000, 0xF000U);
}

// Only the material is rendered again when its light has moved.
TEST(ControlSurfaceLight, IsThatOfThePaint)
{
    SurfaceStyle style;
    style.shape = ShapeKind::RoundedRect;
    style.material = MaterialPreset::LuminousGlass;
    style.materialEnabled = true;
    style.backlightOpacity = 255;
    style.animationSpeed = 600;
    const auto pictureAt = [&style](std::uint64_t time) {
        Canvas canvas({80, 50}, hexColor(0x203040));
        const PaintContextBinding context(canvas.dc(), {.time = time});
        paintControlSurface(canvas.dc(), {5, 5, 70, 40}, style);
        return canvas.pixels();
    };
    EXPECT_EQ(pictureAt(250), pictureAt(250));
    EXPECT_NE(pictureAt(250), pictureAt(500));
}

} // namespace
} // namespace vela
