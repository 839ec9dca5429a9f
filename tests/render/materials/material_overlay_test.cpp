#include "vela/render/materials/material_overlay.h"

#include "tests/render/layers/layer_testing.h"
#include "tests/support/material_reference.h"
#include "tests/support/material_samples.h"
#include "tests/support/picture_difference.h"
#include "vela/render/materials/material_light.h"

#include <cmath>
#include <random>

namespace vela {
namespace {

using testing::kSampleFinishes;
using testing::kSamplePresets;
using testing::MaterialSample;

// A style in which every term of the shader takes part.
SurfaceStyle busyStyle(MaterialPreset material)
{
    SurfaceStyle style;
    style.material = material;
    style.materialEnabled = true;
    style.materialTint = hexColor(0x8A3FC0);
    style.materialStrength = 200;
    style.highlightOpacity = 160;
    style.reflectionOpacity = 140;
    style.grainOpacity = 90;
    style.backlightOpacity = 150;
    style.innerGlow = 120;
    style.rimLight = 110;
    style.edgeWear = 80;
    style.textureOpacity = 200;
    style.materialScale = 11;
    style.materialAngle = 25;
    style.lightBlobAngle = 35;
    style.noiseSeed = 17;
    style.gradientDirection = GradientDirection::DiagonalUp;
    style.uvScale = 50;
    style.uvOffsetX = -33;
    return style;
}

MaterialConstants constantsOf(const SurfaceStyle& style, Size size)
{
    return materialConstants(style, {70, 40, size.width, size.height}, 0.3F, PerformanceProfile::Full);
}

PixelView viewOf(Picture& picture) { return {picture.pixels.data(), picture.size, picture.size.width}; }

Picture overlayOf(const MaterialConstants& constants, const Rect& visible)
{
    return drawLayer(visible, [&](const LayerTarget& target) { renderMaterialOverlay(constants, target); });
}

Picture overlayOf(const MaterialConstants& constants)
{
    return overlayOf(constants, {0, 0, static_cast<std::int32_t>(constants.geometry.x),
                                 static_cast<std::int32_t>(constants.geometry.y)});
}

::testing::AssertionResult looksLikeTheShader(const MaterialConstants& constants)
{
    Picture is = overlayOf(constants);
    Picture should = drawLayer({0, 0, is.size.width, is.size.height}, [&](const LayerTarget& target) {
        renderReferenceMaterial(constants, target);
    });
    return testing::looksTheSame(viewOf(is), viewOf(should));
}

TEST(MaterialOverlay, LooksLikeTheShaderWithEveryFinishAndMapping)
{
    for (const Size size : {Size{41, 17}, Size{9, 52}})
        testing::forEachMaterialSample([size](const MaterialSample& sample) {
            EXPECT_TRUE(looksLikeTheShader(constantsOf(sample, size))) << sample.name();
        });
}

TEST(MaterialOverlay, LooksLikeTheShaderInEveryDirectionAndLight)
{
    for (int preset = 1; preset <= kSamplePresets; ++preset)
        for (int step = 0; step < 8; ++step) {
            SurfaceStyle style = busyStyle(static_cast<MaterialPreset>(preset));
            style.gradientDirection = static_cast<GradientDirection>(step);
            style.finish = static_cast<MaterialFinish>((preset + step) % kSampleFinishes);
            style.materialAngle = step * 50 - 180;
            style.materialScale = 1 << step;
            style.materialLightAngle = step * 45;
            style.materialLightElevation = static_cast<std::uint8_t>(step * 13);
            style.materialDepth = static_cast<std::uint8_t>(step * 36);
            style.ambientOcclusion = static_cast<std::uint8_t>(255 - step * 36);
            style.noiseSeed = static_cast<std::uint32_t>(step) * 555;
            EXPECT_TRUE(looksLikeTheShader(constantsOf(style, {31, 23}))) << preset << ' ' << step;
        }
}

TEST(MaterialOverlay, PartsOfASurfaceFitTogether)
{
    SurfaceStyle style = busyStyle(MaterialPreset::StoneGranite);
    style.finish = MaterialFinish::Cracked;
    const MaterialConstants constants = constantsOf(style, {90, 50});
    const Picture whole = overlayOf(constants);
    const Rect visible{17, 9, 41, 30};
    EXPECT_TRUE(matches(overlayOf(constants, visible), visible, 0,
                        [&](std::int32_t x, std::int32_t y) { return whole.at(x, y); }));
}

TEST(MaterialOverlay, GlobalMappingContinuesOneTextureAcrossNeighbours)
{
    // The marble's veins follow the texture alone; a wide surface and its right half show the same there.
    SurfaceStyle style = busyStyle(MaterialPreset::StoneMarble);
    style.uvMapping = MappingSpace::Global;
    style.materialDepth = 0;
    style.ambientOcclusion = 0;
    style.edgeWear = 0;
    const auto at = [&](const Rect& rect) {
        return overlayOf(materialConstants(style, rect, 0, PerformanceProfile::Full));
    };
    const Picture wide = at({10, 20, 128, 32});
    const Picture right = at({74, 20, 64, 32});
    EXPECT_TRUE(matches(right, {0, 0, 64, 32}, 1,
                        [&](std::int32_t x, std::int32_t y) { return wide.at(x + 64, y); }));
    style.uvMapping = MappingSpace::Local;
    EXPECT_FALSE(matches(at({74, 20, 64, 32}), {0, 0, 64, 32}, 1,
                         [&](std::int32_t x, std::int32_t y) { return wide.at(x + 64, y); }));
}

TEST(MaterialOverlay, ReducedLuminousGlassHasNoLightsBehindIt)
{
    const SurfaceStyle style = busyStyle(MaterialPreset::LuminousGlass);
    const auto with = [&style](float phase, PerformanceProfile profile) {
        const auto constants = materialConstants(style, {0, 0, 60, 40}, phase, profile);
        EXPECT_TRUE(looksLikeTheShader(constants));
        return overlayOf(constants).pixels;
    };
    EXPECT_NE(with(0.3F, PerformanceProfile::Full), with(0.8F, PerformanceProfile::Full));
    EXPECT_NE(with(0, PerformanceProfile::Full), with(0, PerformanceProfile::Reduced));
    EXPECT_EQ(with(0.3F, PerformanceProfile::Reduced), with(0.8F, PerformanceProfile::Reduced));
}

TEST(MaterialOverlay, AddsAMovingLightToWhatStandsStill)
{
    for (const std::uint8_t strength : {std::uint8_t{120}, std::uint8_t{255}}) {
        SurfaceStyle style = busyStyle(MaterialPreset::LuminousGlass);
        style.materialStrength = strength;
        style.backlightOpacity = 255;
        const Size size{61, 33};
        const MaterialConstants constants = constantsOf(style, size);
        ASSERT_TRUE(hasMovingLight(constants));
        Picture unlit = overlayOf(withoutLight(constants));
        const Picture whole = overlayOf(constants);
        Picture lit{size, std::vector<Pixel>(unlit.pixels.size())};
        addLight(constants, viewOf(unlit), viewOf(lit));
        EXPECT_NE(unlit.pixels, lit.pixels);
        EXPECT_TRUE(matches(lit, {0, 0, size.width, size.height}, 1, [&](std::int32_t x, std::int32_t y) {
            return whole.at(x, y);
        })) << int{strength};
    }
}

// Whatever a skin says, pixels stay premultiplied and nothing overflows.
TEST(MaterialOverlay, AnyStyleGivesValidPixels)
{
    std::mt19937 random(7);
    const auto anyOf = [&random](std::initializer_list<std::int64_t> values) {
        return *(values.begin() + random() % values.size());
    };
    const auto byte = [&] { return static_cast<std::uint8_t>(anyOf({0, 1, 127, 255})); };
    const auto number = [&] {
        return static_cast<std::int32_t>(anyOf({0, 1, -1, 37, 8192, INT32_MAX, INT32_MIN}));
    };
    for (int round = 0; round < 400; ++round) {
        SurfaceStyle style = busyStyle(static_cast<MaterialPreset>(round % kSamplePresets + 1));
        for (std::uint8_t* const field :
             {&style.materialStrength, &style.highlightOpacity, &style.reflectionOpacity, &style.grainOpacity,
              &style.materialDepth, &style.backlightOpacity, &style.innerGlow, &style.rimLight,
              &style.materialLightElevation, &style.roughness, &style.specular, &style.ambientOcclusion,
              &style.edgeWear, &style.textureOpacity, &style.opacity})
            *field = byte();
        for (std::int32_t* const field :
             {&style.materialLightAngle, &style.materialScale, &style.materialAngle, &style.lightBlobScale,
              &style.lightBlobAngle, &style.uvScale, &style.uvOffsetX, &style.uvOffsetY})
            *field = number();
        style.finish = static_cast<MaterialFinish>(random() % kSampleFinishes);
        style.uvMapping = static_cast<MappingSpace>(random() % 2);
        style.gradientDirection = static_cast<GradientDirection>(random() % 8);
        style.noiseSeed = static_cast<std::uint32_t>(random());
        style.materialTint = static_cast<Color>(random() & 0xFFFFFF);
        const Rect place{static_cast<std::int32_t>(anyOf({0, -300, 30'000})),
                         static_cast<std::int32_t>(anyOf({0, -300, 30'000})),
                         static_cast<std::int32_t>(anyOf({1, 2, 13, 32'767})),
                         static_cast<std::int32_t>(anyOf({1, 2, 13, 32'767}))};
        const MaterialConstants constants = materialConstants(style, place, 50, PerformanceProfile::Full);
        const Rect visible{place.width > 9 ? place.width - 9 : 0, place.height > 4 ? place.height - 4 : 0,
                           std::min(place.width, 9), std::min(place.height, 4)};
        for (const Pixel pixel : overlayOf(constants, visible).pixels)
            for (int channel = 0; channel < 3; ++channel)
                ASSERT_LE(channelOf(pixel, channel), channelOf(pixel, 3)) << "round " << round;
    }
}

} // namespace
} // namespace vela
