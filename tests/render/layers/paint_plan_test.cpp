#include "vela/render/layers/paint_plan.h"

#include "tests/render/layers/layer_testing.h"

#include <vector>

namespace vela {
namespace {

constexpr Rect kButton{10, 20, 200, 40};

SurfaceStyle styleWithoutLayers()
{
    SurfaceStyle style;
    style.drawFill = style.drawBorder = false;
    return style;
}

SurfaceStyle styleWithEveryLayer()
{
    SurfaceStyle style;
    style.showGlow = style.showShadow = style.useGradient = style.showInnerShadow = style.useNoise =
        style.showOutline = style.materialEnabled = true;
    style.material = MaterialPreset::Glass;
    style.glowRadius = 2;
    style.outlineWidth = 3;
    return style;
}

std::vector<SurfaceLayer> layersOf(const PaintPlan& plan)
{
    std::vector<SurfaceLayer> layers;
    for (const PaintStep& step : plan)
        layers.push_back(step.layer);
    return layers;
}

TEST(PaintPlan, ListsTheLayersInPaintingOrder)
{
    using enum SurfaceLayer;
    using Layers = std::vector<SurfaceLayer>;
    SurfaceStyle style = styleWithEveryLayer();
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {})), (Layers{Glow, Glow, Shadow, Gradient, Border, Material,
                                                               SpatialShading, InnerShadow, Noise, Outline}));
    style.useGradient = false;
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {})), (Layers{Glow, Glow, Shadow, Fill, Border, Material,
                                                               SpatialShading, InnerShadow, Noise, Outline}));
    // Only a face has something for light to fall on, whatever the depth.
    EXPECT_EQ(paintPlan(styleWithoutLayers(), kButton, {}).size(), 0U);
    style = styleWithoutLayers();
    style.useNoise = style.drawBorder = true;
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {})), (Layers{Border, Noise}));
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {}, BitmapCover::Partial)),
              (Layers{Bitmap, Border, SpatialShading, Noise}));
}

// The same layers, and one step more.
TEST(PaintPlan, CutsAFaceToItsAntialiasedOutline)
{
    SurfaceStyle style = styleWithEveryLayer();
    const PaintPlan exact = paintPlan(style, kButton, {});
    const PaintPlan cut = paintPlan(style, kButton, {}, BitmapCover::None, SurfaceEdge::Antialiased);
    ASSERT_EQ(cut.size(), exact.size() + 1);
    EXPECT_TRUE(std::equal(exact.begin(), exact.end(), cut.begin()));
    EXPECT_EQ(cut.face().back().layer, SurfaceLayer::Cut);
    EXPECT_EQ(cut.halo().size(), 3U);
    EXPECT_EQ(cut.face().front().layer, SurfaceLayer::Gradient);
    EXPECT_TRUE(cut.isOpaque());
    style.opacity = 254;
    EXPECT_FALSE(paintPlan(style, kButton, {}).isOpaque());
    // A rectangle has nothing to cut, nor has a surface that is all halo.
    const auto hasCut = [](const SurfaceStyle& wanted) {
        const PaintPlan plan = paintPlan(wanted, kButton, {}, BitmapCover::None, SurfaceEdge::Antialiased);
        return !plan.face().empty() && plan.face().back().layer == SurfaceLayer::Cut;
    };
    style.shape = ShapeKind::Rect;
    EXPECT_FALSE(hasCut(style));
    SurfaceStyle halo = styleWithoutLayers();
    halo.showGlow = true;
    EXPECT_FALSE(hasCut(halo));
}

TEST(PaintPlan, PutsGradientAndFillUnderABitmapThatShowsThem)
{
    using enum SurfaceLayer;
    using Layers = std::vector<SurfaceLayer>;
    SurfaceStyle style = styleWithoutLayers();
    style.materialDepth = 0;
    style.useGradient = true;
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {}, BitmapCover::Partial)), (Layers{Gradient, Bitmap}));
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {}, BitmapCover::Full)), (Layers{Bitmap}));
    style.useGradient = false;
    style.drawFill = true;
    EXPECT_EQ(layersOf(paintPlan(style, kButton, {}, BitmapCover::Partial)), (Layers{Fill, Bitmap}));
}

TEST(PaintPlan, LeavesOutLayersThatWouldShowNothing)
{
    void (*const switchesOff[])(SurfaceStyle&) = {
        [](SurfaceStyle& style) { style.glowOpacity = 0; },
        [](SurfaceStyle& style) { style.glowRadius = -3; },
        [](SurfaceStyle& style) { style.shadowOpacity = 0; },
        [](SurfaceStyle& style) { style.opacity = 0; },
        [](SurfaceStyle& style) { style.materialStrength = 0; },
        [](SurfaceStyle& style) { style.materialEnabled = false; },
        [](SurfaceStyle& style) { style.materialDepth = 0; },
        [](SurfaceStyle& style) { style.innerShadow = 0; },
        [](SurfaceStyle& style) { style.innerShadowSize = 0; },
        [](SurfaceStyle& style) { style.noiseOpacity = 0; },
        [](SurfaceStyle& style) { style.outlineWidth = 0; },
    };
    const std::size_t all = paintPlan(styleWithEveryLayer(), kButton, {}).size();
    for (std::size_t row = 0; row < std::size(switchesOff); ++row) {
        SurfaceStyle style = styleWithEveryLayer();
        switchesOff[row](style);
        EXPECT_LT(paintPlan(style, kButton, {}).size(), all) << row;
    }
}

TEST(PaintPlan, PaintsNothingOutsideTheClip)
{
    const SurfaceStyle style = styleWithEveryLayer();
    EXPECT_EQ(paintPlan(style, {0, 0, 0, 40}, {}).size(), 0U);
    EXPECT_EQ(paintPlan(style, kButton, Rect{}).size(), 0U);
    // The glow reaches into this one, but the surface itself does not.
    EXPECT_EQ(paintPlan(style, kButton, Rect{0, 0, 10, 100}).size(), 0U);
    EXPECT_EQ(paintPlan(style, kButton, Rect{209, 59, 5, 5}).size(), paintPlan(style, kButton, {}).size());
    // A shadow that falls elsewhere is no work here.
    SurfaceStyle farShadow = styleWithoutLayers();
    farShadow.showShadow = true;
    farShadow.shadowOffsetY = 100;
    EXPECT_EQ(paintPlan(farShadow, kButton, kButton).size(), 0U);
}

TEST(PaintPlan, GlowIsAHaloOfRingsAroundTheSurface)
{
    const struct {
        std::int32_t radius;
        int opacity;
        std::vector<std::int32_t> growths; // from the outermost
        std::vector<int> alphas;
    } rows[] = {
        {20, 90, {20, 18, 15, 13, 10, 8, 5, 3}, {3, 7, 11, 15, 18, 22, 26, 30}}, // 17.5, 12.5, ... round up
        {3, 60, {3, 2, 1}, {6, 13, 20}},
        {1, 2, {1}, {1}},
        {0, 60, {}, {}},
    };
    for (const auto& row : rows) {
        SurfaceStyle style = styleWithoutLayers();
        style.showGlow = true;
        style.glowRadius = row.radius;
        style.glowOpacity = static_cast<std::uint8_t>(row.opacity);
        const PaintPlan plan = paintPlan(style, kButton, {});
        ASSERT_EQ(plan.size(), row.growths.size()) << row.radius;
        for (std::size_t ring = 0; ring < plan.size(); ++ring) {
            const std::int32_t g = row.growths[ring];
            const PaintStep expected{SurfaceLayer::Glow,
                                     {10 - g, 20 - g, 200 + 2 * g, 40 + 2 * g},
                                     style.glow,
                                     static_cast<std::uint8_t>(row.alphas[ring])};
            EXPECT_EQ(plan.begin()[ring], expected) << row.radius << " ring " << ring;
        }
    }
}

TEST(PaintPlan, IsBoundedByGlowAndShadow)
{
    SurfaceStyle style = styleWithoutLayers();
    EXPECT_EQ(paintedBounds(style, kButton), Rect{});
    style.image = BitmapSkin{L"plate.png", {}};
    EXPECT_EQ(paintedBounds(style, kButton), kButton);
    style.showShadow = true;
    style.shadowOffsetX = -7;
    style.shadowOffsetY = 12;
    EXPECT_EQ(paintedBounds(style, kButton), (Rect{3, 20, 207, 52}));
    style.showGlow = true;
    style.glowRadius = 10;
    EXPECT_EQ(paintedBounds(style, kButton), (Rect{0, 10, 220, 62}));
    style.glowOpacity = style.shadowOpacity = 0;
    EXPECT_EQ(paintedBounds(style, kButton), kButton);
    style.glowOpacity = style.shadowOpacity = 255;
    style.glowRadius = style.shadowOffsetX = style.shadowOffsetY = 2147483647; // limited as it is painted
    EXPECT_EQ(paintedBounds(style, kButton), grownBy(kButton, 1 << 20));
    EXPECT_EQ(paintedBounds(style, {0, 0, 0, 40}), Rect{});
}

TEST(PaintPlan, CarriesWhatEachLayerNeeds)
{
    SurfaceStyle style = styleWithEveryLayer();
    style.shadowOffsetX = -3;
    style.shadowOffsetY = 2147483647; // a skin's nonsense must not overflow
    const PaintPlan plan = paintPlan(style, kButton, {});
    const PaintStep* shadow = plan.begin() + 2;
    EXPECT_EQ(shadow->rect.x, 7);
    EXPECT_EQ(shadow->color, style.shadow);
    EXPECT_EQ(shadow->alpha, style.shadowOpacity);
    EXPECT_EQ((plan.begin() + 4)->penWidth, 1);
    EXPECT_EQ((plan.end() - 1)->penWidth, 3);
    EXPECT_EQ((plan.end() - 1)->color, style.outline);
}

TEST(PaintPlan, EveryLayerOfTheStyleAloneFillsItsTarget)
{
    const SurfaceStyle style = styleWithEveryLayer();
    for (const PaintStep& step : paintPlan(style, kButton, {})) {
        if (step.layer == SurfaceLayer::Material)
            continue;
        const Size size = sizeOf(step.rect);
        const Picture picture = drawLayer({0, 0, size.width, size.height}, [&](const LayerTarget& target) {
            fillLayer(target, {style.shape, size}, step, style, {10, 20});
        });
        EXPECT_EQ(picture.at(0, 0), 0U)
            << "a corner outside the shape in layer " << static_cast<int>(step.layer);
        EXPECT_TRUE(
            std::any_of(picture.pixels.begin(), picture.pixels.end(), [](Pixel p) { return p != 0; }));
    }
}

} // namespace
} // namespace vela
