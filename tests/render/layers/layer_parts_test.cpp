// What every pixel layer has in common: a part of a surface shows the very pixels that the whole has there,
// and only what is visible costs anything, however large the surface.
#include "tests/render/bitmaps/bitmap_testing.h"
#include "tests/render/layers/layer_testing.h"
#include "tests/support/material_samples.h"
#include "vela/render/bitmaps/tinted_bitmap.h"
#include "vela/render/layers/gradient.h"
#include "vela/render/layers/inner_shadow.h"
#include "vela/render/layers/layer_bounds.h"
#include "vela/render/layers/noise.h"
#include "vela/render/layers/solid_layer.h"
#include "vela/render/layers/spatial_shading.h"
#include "vela/render/materials/material_overlay.h"

#include <random>

namespace vela {
namespace {

class Dice {
public:
    explicit Dice(unsigned seed) : random_(seed) {}
    std::int32_t upTo(std::int32_t most)
    {
        return static_cast<std::int32_t>(random_() % (static_cast<unsigned>(most) + 1));
    }
    std::uint8_t byte() { return static_cast<std::uint8_t>(random_()); }
    Color color() { return hexColor(random_() & 0xFFFFFF); }
    bool often() { return upTo(3) > 0; }
    // Any number at all, the limits among them.
    std::int32_t anything()
    {
        switch (upTo(4)) {
        case 0: return INT32_MAX;
        case 1: return INT32_MIN;
        case 2: return upTo(40) - 20;
        default: return static_cast<std::int32_t>(random_());
        }
    }

private:
    std::mt19937 random_;
};

SurfaceStyle randomStyle(Dice& dice)
{
    SurfaceStyle style;
    style.shape = static_cast<ShapeKind>(dice.upTo(9));
    style.gradientStart = dice.color();
    style.gradientMid = dice.color();
    style.gradientEnd = dice.color();
    style.useGradientMid = dice.often();
    style.gradientKind = static_cast<GradientKind>(dice.upTo(5));
    style.gradientDirection = static_cast<GradientDirection>(dice.upTo(8));
    style.opacity = dice.often() ? 255 : dice.byte();
    style.outlineWidth = dice.often() ? dice.upTo(9) : dice.anything();
    style.noise = dice.color();
    style.noiseOpacity = dice.byte();
    style.noiseSeed = static_cast<std::uint32_t>(dice.anything());
    style.uvMapping = static_cast<MappingSpace>(dice.upTo(1));
    style.uvOffsetX = dice.anything();
    style.innerShadow = dice.byte();
    style.innerShadowSize = dice.often() ? dice.upTo(30) : dice.anything();
    style.innerShadowColor = dice.color();
    style.materialDepth = dice.byte();
    style.materialLightAngle = dice.anything();
    style.rimLight = dice.byte();
    style.highlightOpacity = dice.byte();
    style.useNineSlice = dice.often();
    style.nineSlice = {dice.upTo(3), dice.upTo(3), dice.upTo(3), dice.anything()};
    return style;
}

// One layer of a surface.
using Fill = void (*)(const LayerTarget&, const Coverage&, const SurfaceStyle&);

const TintedBitmap& plate()
{
    static const TintedBitmap bitmap(pictureOf({".rrgb.", "rhwwbg", "gbhhwr", ".gbrg."}), {});
    return bitmap;
}

const struct {
    const char* name;
    Fill fill;
} kLayers[] = {
    {"solid", [](const LayerTarget& target, const Coverage& coverage,
                 const SurfaceStyle& style) { fillSolid(target, coverage, style.fill, style.opacity); }},
    {"stroke",
     [](const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style) {
         fillStroke(target, coverage, style.outline, style.outlineWidth);
     }},
    {"gradient", fillGradient},
    {"noise",
     [](const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style) {
         fillNoise(target, coverage, style, {30, -7});
     }},
    {"shading", fillSpatialShading},
    {"inner shadow", fillInnerShadow},
    {"bitmap",
     [](const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style) {
         fillBitmap(target, coverage, plate(), bitmapPlacement(style, coverage.size()));
     }},
};

// Every second column of every row but each seventh.
RunMask combOf(Size size)
{
    RunMask mask(size);
    for (std::int32_t y = 0; y < size.height; ++y, mask.endRow())
        for (std::int32_t x = y % 3; x < size.width && y % 7 != 6; x += 9)
            mask.addRun({x, std::min(x + 6, size.width)});
    return mask;
}

::testing::AssertionResult partsEqualTheWhole(const SurfaceStyle& style, const Coverage& coverage, Fill fill,
                                              Dice& dice)
{
    const Size size = coverage.size();
    const auto draw = [&](const Rect& visible) {
        return drawLayer(visible, [&](const LayerTarget& target) { fill(target, coverage, style); });
    };
    const Picture whole = draw({0, 0, size.width, size.height});
    for (int part = 0; part < 4; ++part) {
        Rect visible{dice.upTo(size.width - 1), dice.upTo(size.height - 1), 0, 0};
        visible.width = 1 + dice.upTo(size.width - visible.x - 1);
        visible.height = 1 + dice.upTo(size.height - visible.y - 1);
        const ::testing::AssertionResult same = matches(
            draw(visible), visible, 0, [&](std::int32_t x, std::int32_t y) { return whole.at(x, y); });
        if (!same)
            return same;
    }
    return ::testing::AssertionSuccess();
}

// 300 x 200 and 120 x 100 stand for the two regimes of large inner shadows.
TEST(LayerParts, EqualTheWholeInEveryPixel)
{
    Dice dice(20261);
    constexpr Size kSizes[] = {{300, 200}, {120, 100}, {97, 61}, {40, 90},
                               {7, 5},     {1, 30},    {200, 1}, {5000, 2}};
    for (int round = 0; round < 120; ++round) {
        const SurfaceStyle style = randomStyle(dice);
        const Size size = kSizes[static_cast<std::size_t>(round) % std::size(kSizes)];
        const RunMask mask = combOf(size);
        for (const auto& layer : kLayers) {
            EXPECT_TRUE(partsEqualTheWhole(style, {style.shape, size}, layer.fill, dice))
                << layer.name << ", round " << round;
            EXPECT_TRUE(partsEqualTheWhole(style, Coverage::uncut(style.shape, size), layer.fill, dice))
                << layer.name << " not yet cut, round " << round;
            EXPECT_TRUE(partsEqualTheWhole(style, Coverage(mask), layer.fill, dice))
                << layer.name << " on a mask, round " << round;
        }
    }
}

TEST(LayerParts, EqualTheWholeInEveryMaterial)
{
    Dice dice(8);
    static MaterialConstants constants; // for a function without a capture
    testing::forEachMaterialSample([&](const testing::MaterialSample& sample) {
        const Size size{2 + dice.upTo(60), 2 + dice.upTo(30)};
        constants = testing::constantsOf(sample, size);
        EXPECT_TRUE(partsEqualTheWhole(
            {}, {ShapeKind::Rect, size},
            [](const LayerTarget& target, const Coverage&, const SurfaceStyle&) {
                renderMaterialOverlay(constants, target);
            },
            dice))
            << sample.name();
    });
}

bool isPremultiplied(const Picture& picture)
{
    return std::all_of(picture.pixels.begin(), picture.pixels.end(), [](Pixel pixel) {
        return channelOf(pixel, 0) <= channelOf(pixel, 3) && channelOf(pixel, 1) <= channelOf(pixel, 3) &&
               channelOf(pixel, 2) <= channelOf(pixel, 3);
    });
}

// A skin may name any length. Nothing here is longer than the window that it is seen through.
TEST(LayerParts, OfAWildSurfaceCostWhatIsSeen)
{
    constexpr std::int32_t kMost = INT32_MAX;
    Dice dice(63);
    for (const Size size : {Size{kMost, kMost}, Size{kMost, 64}, Size{64, kMost}, Size{kMost - 1, 100}})
        for (const Point corner : {Point{0, 0}, Point{size.width / 2 - 32, size.height / 2 - 32},
                                   Point{size.width - 64, size.height - 64}})
            for (int shape = 0; shape < 10; ++shape) {
                const Rect visible{corner.x, corner.y, 64, 64};
                SurfaceStyle style = randomStyle(dice);
                style.shape = static_cast<ShapeKind>(shape);
                const Coverage coverage(style.shape, size);
                for (const auto& layer : kLayers)
                    for (int kind = 0; kind < 5; ++kind) {
                        style.gradientKind = static_cast<GradientKind>(kind);
                        EXPECT_TRUE(isPremultiplied(drawLayer(
                            visible,
                            [&](const LayerTarget& target) { layer.fill(target, coverage, style); })))
                            << layer.name << " of " << size.width << 'x' << size.height;
                    }
                PaintStep shadow;
                shadow.layer = SurfaceLayer::InnerShadow;
                std::int64_t area = 0;
                for (const Rect& rect : layerBounds(shadow, coverage, style))
                    area += std::int64_t{rect.width} * rect.height;
                EXPECT_LE(area, std::int64_t{size.width} * size.height);
            }
}

TEST(LayerParts, OfAWildMaterialCostWhatIsSeen)
{
    constexpr std::int32_t kMost = INT32_MAX;
    for (const Size size : {Size{kMost, kMost}, Size{kMost, 64}, Size{64, kMost}})
        testing::forEachMaterialSample([&](const testing::MaterialSample& sample) {
            const MaterialConstants constants = testing::constantsOf(sample, size);
            const Rect visible{size.width - 20, size.height - 6, 20, 6};
            EXPECT_TRUE(isPremultiplied(drawLayer(visible, [&](const LayerTarget& target) {
                renderMaterialOverlay(constants, target);
            }))) << sample.name();
        });
}

} // namespace
} // namespace vela
