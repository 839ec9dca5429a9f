#include "vela/render/surface/surface_painter.h"

#include "tests/support/canvas_gdi.h"
#include "tests/support/gdi_objects_gdi.h"
#include "tests/support/golden_win32.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/paint/paint.h"
#include "vela/render/shapes/shape.h"
#include "vela/render/shapes/shape_rects.h"
#include "vela/render/surface/surface_shape.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Canvas;

constexpr Color kGround = hexColor(0x304050);
constexpr Pixel kGroundPixel = 0x304050;
constexpr Size kSizes[] = {{1, 1}, {2, 9}, {10, 10}, {41, 18}, {18, 41}, {60, 60}, {90, 33}};

// Every layer that a style can ask for, each leaving a mark of its own.
SurfaceStyle richStyle(ShapeKind shape)
{
    SurfaceStyle style;
    style.shape = shape;
    style.gradientStart = hexColor(0x3C6E71);
    style.gradientMid = hexColor(0x284B63);
    style.gradientEnd = hexColor(0x101820);
    style.border = hexColor(0xC49452);
    style.outline = hexColor(0xE2AA58);
    style.materialDepth = 120;
    style.noiseOpacity = 40;
    style.innerShadow = 160;
    style.innerShadowSize = 8;
    style.shadowOffsetX = 3;
    style.shadowOffsetY = 4;
    style.outlineWidth = 2;
    style.showShadow = style.showInnerShadow = style.showGlow = style.showOutline = true;
    style.useGradient = style.useGradientMid = style.useNoise = true;
    return style;
}

bool covers(ShapeKind kind, const Rect& rect, std::int32_t x, std::int32_t y)
{
    return pointInShape(kind, rect.width, rect.height, {x - rect.x, y - rect.y});
}

// Fill and stroke through GDI, pixel by pixel against the mask: nothing short at the right and the bottom,
// nothing beyond.
TEST(SurfacePainterTest, FillAndStrokeCoverTheMasksPixels)
{
    for (int value = 0; value <= 9; ++value) {
        const auto kind = static_cast<ShapeKind>(value);
        for (const Size size : kSizes) {
            const Rect rect{3, 4, size.width, size.height};
            Canvas fill({100, 70}, kGround);
            fillShape(fill.dc(), rect, kind, hexColor(0xFFFFFF));
            Canvas stroke({100, 70}, kGround);
            strokeShapeOutline(stroke.dc(), rect, kind, hexColor(0xFFFFFF), 1);
            for (std::int32_t y = 0; y < 70; ++y) {
                const Span inner = innerRow(kind, size, 1, y - rect.y);
                for (std::int32_t x = 0; x < 100; ++x) {
                    const bool inside = covers(kind, rect, x, y);
                    const bool free = x - rect.x >= inner.begin && x - rect.x < inner.end;
                    ASSERT_EQ(fill.at(x, y) != kGroundPixel, inside) << value << ' ' << x << ',' << y;
                    ASSERT_EQ(stroke.at(x, y) != kGroundPixel, inside && !free)
                        << value << ' ' << x << ',' << y;
                }
            }
        }
    }
}

// The pixel layers, composited, meet the same mask.
TEST(SurfacePainterTest, ACompositedLayerCoversTheMasksPixels)
{
    for (int value = 0; value <= 8; ++value) {
        SurfaceStyle style;
        style.shape = static_cast<ShapeKind>(value);
        style.gradientStart = style.gradientEnd = hexColor(0xFF8040);
        const Rect rect{5, 6, 81, 37};
        Canvas canvas({100, 50}, kGround);
        drawGradientShape(canvas.dc(), rect, style);
        for (std::int32_t y = 0; y < 50; ++y)
            for (std::int32_t x = 0; x < 100; ++x)
                ASSERT_EQ(canvas.at(x, y), covers(style.shape, rect, x, y) ? 0xFF8040u : kGroundPixel);
    }
}

// GDI rounds a region's slopes in its own way: to the mask it may differ by a few pixels along the outline,
// never inside or outside of that.
TEST(SurfacePainterTest, WindowRegionsFollowTheOutline)
{
    SurfaceStyle style;
    for (int value = 1; value <= 8; ++value) {
        style.shape = static_cast<ShapeKind>(value);
        for (const Size size : {Size{200, 40}, Size{40, 200}, Size{60, 60}, Size{301, 151}}) {
            const OwnedRegion region(createShapeRegion(style, size));
            ASSERT_TRUE(region);
            RECT box;
            ::GetRgnBox(region.get(), &box);
            EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= size.width &&
                        box.bottom <= size.height);
            std::int32_t missing = 0;
            std::int32_t beyond = 0;
            for (std::int32_t y = 0; y < size.height; ++y) {
                const Span core = innerRow(style.shape, size, 2, y);
                for (std::int32_t x = 0; x < size.width; ++x) {
                    const bool isIn = ::PtInRegion(region.get(), x, y) != FALSE;
                    missing += !isIn && x >= core.begin && x < core.end;
                    beyond += isIn && !covers(style.shape, {-3, -3, size.width + 6, size.height + 6}, x, y);
                }
            }
            EXPECT_EQ(missing, 0) << value << ' ' << size.width << 'x' << size.height;
            EXPECT_EQ(beyond, 0) << value << ' ' << size.width << 'x' << size.height;
        }
    }
    for (const int value : {0, 9, 200}) {
        style.shape = static_cast<ShapeKind>(value);
        EXPECT_EQ(createShapeRegion(style, {100, 40}), nullptr) << value;
    }
    style.shape = ShapeKind::Pill;
    EXPECT_EQ(createShapeRegion(style, {0, 40}), nullptr);
}

// Whatever part the clip shows, it shows the very pixels that the whole surface has there.
TEST(SurfacePainterTest, AClippedSurfaceShowsTheSamePixels)
{
    for (int value = 0; value <= 8; ++value) {
        const SurfaceStyle style = richStyle(static_cast<ShapeKind>(value));
        const Rect rect{20, 15, 120, 50};
        Canvas whole({160, 90}, kGround);
        paintSurface(whole.dc(), rect, style);
        for (const Rect clip :
             {Rect{0, 0, 60, 40}, Rect{70, 30, 20, 60}, Rect{139, 64, 5, 5}, Rect{33, 15, 1, 50}}) {
            Canvas part({160, 90}, kGround);
            ::IntersectClipRect(part.dc(), clip.x, clip.y, clip.x + clip.width, clip.y + clip.height);
            paintSurface(part.dc(), rect, style);
            for (std::int32_t y = 0; y < 90; ++y) {
                for (std::int32_t x = 0; x < 160; ++x) {
                    const bool shown = !isEmpty(intersection(clip, {x, y, 1, 1}));
                    ASSERT_EQ(part.at(x, y), shown ? whole.at(x, y) : kGroundPixel) << x << ',' << y;
                }
            }
        }
    }
}

TEST(SurfacePainterTest, HiddenAndEmptySurfacesPaintNothing)
{
    Canvas canvas({60, 40}, kGround);
    const auto before = canvas.pixels();
    const SurfaceStyle style = richStyle(ShapeKind::Pill);
    for (const Rect rect : {Rect{10, 10, 0, 20}, Rect{10, 10, 20, -4}, Rect{100, 10, 20, 20}})
        paintSurface(canvas.dc(), rect, style);
    SurfaceStyle off;
    off.drawFill = off.drawBorder = false;
    off.materialDepth = 0;
    paintSurface(canvas.dc(), {10, 10, 20, 20}, off);
    ::IntersectClipRect(canvas.dc(), 50, 30, 50, 30);
    paintSurface(canvas.dc(), {10, 10, 20, 20}, style);
    EXPECT_EQ(canvas.pixels(), before);
}

TEST(SurfacePainterTest, BuffersAreCompositedSourceOver)
{
    Canvas canvas({4, 2}, hexColor(0x808080));
    Pixel pixels[] = {makePixel(255, 0, 0, 255), makePixel(0, 0, 0, 0), makePixel(64, 0, 0, 128),
                      makePixel(9, 9, 9, 9)};
    compositePixelBuffer(canvas.dc(), {1, 0, 2, 2}, {pixels, {2, 2}, 2});
    EXPECT_EQ(canvas.at(1, 0), 0xFF0000u);
    EXPECT_EQ(canvas.at(2, 0), 0x808080u);
    EXPECT_EQ(canvas.at(1, 1), 0x804040u); // 64 + 128 * 127 / 255
    EXPECT_EQ(canvas.at(0, 0), 0x808080u);

    const auto before = canvas.pixels();
    compositePixelBuffer(canvas.dc(), {0, 0, 2, 2}, {});
    compositePixelBuffer(canvas.dc(), {0, 0, 0, 2}, {pixels, {2, 2}, 2});
    compositePixelBuffer(canvas.dc(), {0, 0, 3, 2}, {pixels, {2, 2}, 2}); // not the buffer's size
    EXPECT_EQ(canvas.pixels(), before);
}

TEST(SurfacePainterTest, ALayerWithoutABitmapIsLeftOut)
{
    bool filled = false;
    const HDC screenless = ::CreateCompatibleDC(nullptr);
    renderPixelLayer(screenless, {0, 0, 0, 10}, [&](const LayerTarget&) { filled = true; });
    EXPECT_FALSE(filled);
    EXPECT_EQ(scratchPixels({1 << 20, 1 << 20}).pixels, nullptr);
    ::DeleteDC(screenless);
    const PixelView pixels = scratchPixels({300, 200});
    ASSERT_NE(pixels.pixels, nullptr);
    EXPECT_EQ(pixels.size, (Size{300, 200}));
    EXPECT_GE(pixels.stride, 300);
}

TEST(SurfacePainterTest, TenThousandPaintsLeaveNoObjectBehind)
{
    Canvas canvas({64, 40}, kGround);
    const SurfaceStyle style = richStyle(ShapeKind::RoundedRect);
    const auto paint = [&](int i) {
        paintSurface(canvas.dc(), {12, 12, 20 + i % 20, 14}, style);
        ::DeleteObject(createShapeRegion(style, {20 + i % 20, 14}));
    };
    paint(0);
    const int objects = testing::gdiObjectCount();
    for (int i = 1; i < 10000; ++i)
        paint(i);
    EXPECT_EQ(testing::gdiObjectCount(), objects);
}

// Shapes across, from bare fill to all layers down.
TEST(SurfacePainterTest, TheSheetOfLayersLooksAsItDid)
{
    constexpr Size kCell{88, 52};
    Canvas canvas({9 * kCell.width, 6 * kCell.height}, kGround);
    for (int value = 0; value <= 8; ++value) {
        SurfaceStyle style;
        style.shape = static_cast<ShapeKind>(value);
        style.materialDepth = 0;
        const SurfaceStyle rich = richStyle(style.shape);
        std::int32_t row = 0;
        const auto cell = [&] {
            paintSurface(canvas.dc(), {value * kCell.width + 12, row++ * kCell.height + 11, 64, 30}, style);
        };
        cell();
        style = rich;
        style.showGlow = style.showShadow = style.showInnerShadow = style.showOutline = style.useNoise =
            false;
        style.materialDepth = 0;
        cell();
        style.materialDepth = rich.materialDepth;
        cell();
        style.showInnerShadow = true;
        cell();
        style.gradientKind = static_cast<GradientKind>(value % 5);
        style.gradientDirection = static_cast<GradientDirection>(value % 8);
        style.useNoise = true;
        cell();
        style = rich;
        cell();
    }
    EXPECT_TRUE(testing::matchesGolden(L"layers", canvas.view(), 2));
}

} // namespace
} // namespace vela
