#include "vela/render/materials/material_overlay_gdi.h"

#include "tests/support/canvas_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/materials/material_source_gdi.h"
#include "vela/render/paint/paint.h"
#include "vela/render/pixels/picture_store.h"
#include "vela/render/shapes/shape.h"
#include "vela/render/surface/surface_painter.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Canvas;

constexpr Color kBackground = hexColor(0x304050);
constexpr Rect kPlace{5, 6, 80, 30};

// Nothing but its material, which is opaque enough to show everywhere.
SurfaceStyle bareStyle()
{
    SurfaceStyle style;
    style.shape = ShapeKind::Hexagon;
    style.drawFill = style.drawBorder = false;
    style.materialDepth = 0;
    style.material = MaterialPreset::CarbonFiber;
    style.materialEnabled = true;
    style.grainOpacity = 255;
    style.materialTint = hexColor(0x40FF40);
    return style;
}

TEST(MaterialOverlayPaintTest, CoversTheShapeAndNothingElse)
{
    const SurfaceStyle style = bareStyle();
    Canvas canvas({90, 40}, kBackground);
    const Pixel background = canvas.at(0, 0);
    paintSurface(canvas.dc(), kPlace, style);
    for (std::int32_t y = 0; y < 40; ++y)
        for (std::int32_t x = 0; x < 90; ++x) {
            const Point inside{x - kPlace.x, y - kPlace.y};
            ASSERT_EQ(canvas.at(x, y) != background,
                      pointInShape(style.shape, kPlace.width, kPlace.height, inside))
                << x << ',' << y;
        }
}

TEST(MaterialOverlayPaintTest, AMovingLightIsRenderedOncePerStepIntoOnePlace)
{
    SurfaceStyle style = bareStyle();
    style.material = MaterialPreset::LuminousGlass;
    style.animationSpeed = 600;
    Canvas canvas({90, 40}, kBackground);
    const std::size_t rendered = movingOverlaysRendered();
    std::size_t made = 0;
    for (const std::uint64_t time : {100U, 100U, 300U, 300U, 100U}) {
        const PaintContextBinding context(canvas.dc(), {.time = time});
        paintSurface(canvas.dc(), kPlace, style);
        made = std::max(made, pictureStore().made());
    }
    EXPECT_EQ(movingOverlaysRendered(), rendered + 3);
    EXPECT_EQ(pictureStore().made(), made);
    // Where no light may move, it is part of its surface's picture.
    for (int time = 0; time < 3; ++time) {
        const PaintContextBinding context(canvas.dc(), {.profile = PerformanceProfile::Reduced});
        paintSurface(canvas.dc(), kPlace, style);
    }
    EXPECT_EQ(movingOverlaysRendered(), rendered + 3);
    EXPECT_EQ(pictureStore().made(), made + 1);
}

TEST(MaterialOverlayPaintTest, CostsNothingWhereNoMaterialIsAskedFor)
{
    const std::size_t made = pictureStore().made();
    Canvas canvas({90, 40}, kBackground);
    const std::vector<Pixel> before = canvas.pixels();
    const auto expectNothing = [&](const SurfaceStyle& style) {
        paintSurface(canvas.dc(), kPlace, style);
        drawMaterialOverlay(canvas.dc(), kPlace, style);
        drawSeamlessMaterialTextureOverlay(canvas.dc(), kPlace, style, PerformanceProfile::Full);
        EXPECT_EQ(canvas.pixels(), before);
    };
    SurfaceStyle style = bareStyle();
    style.materialEnabled = false;
    expectNothing(style);
    style = bareStyle();
    style.material = MaterialPreset::None;
    expectNothing(style);
    style = bareStyle();
    style.materialStrength = 0;
    expectNothing(style);
    // Nor outside of the clip.
    style = bareStyle();
    drawMaterialOverlay(canvas.dc(), {200, 200, 80, 30}, style);
    EXPECT_EQ(pictureStore().made(), made);
}

TEST(MaterialOverlayPaintTest, SeamlessTexturesJoinAcrossNeighbours)
{
    SurfaceStyle style = bareStyle();
    style.shape = ShapeKind::Rect;
    style.material = MaterialPreset::StoneMarble;
    style.highlightOpacity = 0; // the shine from the top is the surface's own
    style.ambientOcclusion = 0;
    style.uvScale = 120;
    const auto veins = [&style](std::initializer_list<Rect> places) {
        Canvas canvas({90, 40}, kBackground);
        for (const Rect& place : places)
            drawSeamlessMaterialTextureOverlay(canvas.dc(), place, style, PerformanceProfile::Full);
        return canvas.pixels();
    };
    const std::vector<Pixel> one = veins({{5, 4, 80, 32}});
    const std::vector<Pixel> two = veins({{5, 4, 30, 32}, {35, 4, 50, 32}});
    std::size_t different = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        different += one[i] != two[i];
    EXPECT_LT(different, one.size() / 100); // positions round differently
    EXPECT_NE(veins({{5, 4, 30, 32}}), veins({{6, 4, 30, 32}}));
}

// Larger than all that may be cached: the part that can be seen is rendered each time.
TEST(MaterialOverlayPaintTest, ShowsASurfaceTooLargeToBeCached)
{
    SurfaceStyle style = bareStyle();
    style.shape = ShapeKind::Diamond;
    Canvas canvas({90, 40}, kBackground);
    const Pixel background = canvas.at(0, 0);
    const std::size_t made = pictureStore().made();
    drawMaterialOverlay(canvas.dc(), {-20'000, -10, 40'000, 30'000}, style); // its tip is in the picture
    for (int time = 0; time < 3; ++time)
        paintSurface(canvas.dc(), {-20'000, -10, 40'000, 30'000}, style);
    EXPECT_EQ(pictureStore().made(), made);
    EXPECT_NE(canvas.at(5, 5), background);
    EXPECT_EQ(canvas.at(60, 5), background);
}

} // namespace
} // namespace vela
