#include "vela/render/materials/material_cache.h"
#include "vela/render/materials/material_clock.h"
#include "vela/render/materials/material_constants.h"

#include <gtest/gtest.h>

#include <limits>

namespace vela {
namespace {

SurfaceStyle carved(MaterialPreset material)
{
    SurfaceStyle style;
    style.material = material;
    style.materialEnabled = true;
    return style;
}

constexpr Rect kPlace{30, 40, 200, 100};

TEST(MaterialConstants, AreCarriedOnlyByASurfaceWhoseMaterialShows)
{
    SurfaceStyle style = carved(MaterialPreset::Gemstone);
    EXPECT_TRUE(carriesMaterial(style));
    style.materialStrength = 0;
    EXPECT_FALSE(carriesMaterial(style));
    style = carved(MaterialPreset::None);
    EXPECT_FALSE(carriesMaterial(style));
    style = carved(MaterialPreset::Glass);
    style.materialEnabled = false;
    EXPECT_FALSE(carriesMaterial(style));
}

TEST(MaterialConstants, StandInTheShadersOrderAndUnits)
{
    SurfaceStyle style = carved(MaterialPreset::Gemstone);
    style.materialTint = hexColor(0xFF8000);
    style.backlightColor = hexColor(0x0000FF);
    style.materialStrength = 202;
    style.highlightOpacity = 1;
    style.reflectionOpacity = 2;
    style.grainOpacity = 3;
    style.materialDepth = 4;
    style.materialScale = 5;
    style.materialAngle = 180;
    style.materialLightAngle = -90;
    style.materialLightElevation = 90;
    style.lightBlobScale = 6;
    style.lightBlobAngle = 360;
    style.uvMapping = MappingSpace::Global;
    style.uvScale = 100;
    style.uvOffsetX = 7;
    style.uvOffsetY = -8;
    style.backlightOpacity = 9;
    style.innerGlow = 10;
    style.rimLight = 11;
    style.gradientDirection = GradientDirection::DiagonalUp;
    style.noiseSeed = 12;
    style.opacity = 13;
    style.roughness = 14;
    style.specular = 15;
    style.ambientOcclusion = 16;
    style.edgeWear = 17;
    style.textureOpacity = 18;
    style.finish = MaterialFinish::Etched;

    constexpr float kPi = 3.14159265F;
    const MaterialConstants expected{
        {1, 128.0F / 255, 0, 1}, {0, 0, 1, 1},   {200, 100, 30, 40},
        {15, 202, 1, 2},         {3, 4, 5, kPi}, {-kPi / 2, kPi / 2, 6, 0},
        {1, 100, 7, -8},         {0, 0, 9, 10},  {11, 6, 12, 13},
        {14, 15, 16, 17},        {18, 8, 0, 0},
    };
    EXPECT_EQ(materialConstants(style, kPlace, 0.5F, PerformanceProfile::Reduced), expected);
}

TEST(MaterialConstants, AreEqualWhereTheLookIs)
{
    const auto at = [](const SurfaceStyle& style, Point place) {
        return materialConstants(style, {place.x, place.y, 80, 40}, 0, PerformanceProfile::Full);
    };
    SurfaceStyle style = carved(MaterialPreset::StoneMarble);
    EXPECT_EQ(at(style, {0, 0}), at(style, {50, 60}));
    style.uvMapping = MappingSpace::Global;
    EXPECT_NE(at(style, {0, 0}), at(style, {50, 60}));
    style.uvScale = 100;
    style.uvOffsetX = 3;
    const MaterialConstants near = at(style, {0, 0});
    style.uvOffsetX = 3 + 200 * 10'000'000; // whole periods further
    EXPECT_EQ(near, at(style, {0, 0}));
}

TEST(MaterialConstants, KeepTheLuminousLightOnlyWhereTheMachineHasTheTime)
{
    const SurfaceStyle style = carved(MaterialPreset::LuminousGlass);
    const ShaderVector full = materialConstants(style, kPlace, 0.5F, PerformanceProfile::Full).material4;
    EXPECT_EQ(full.x, 0.5F);
    EXPECT_EQ(full.y, 0);
    const ShaderVector reduced =
        materialConstants(style, kPlace, 0.5F, PerformanceProfile::Reduced).material4;
    EXPECT_EQ(reduced.x, 0);
    EXPECT_EQ(reduced.y, 1);
}

TEST(MaterialClock, TurnsTheLightSoManyTimesInTenMinutes)
{
    SurfaceStyle style = carved(MaterialPreset::LuminousGlass);
    EXPECT_FALSE(hasMovingLight(style));
    EXPECT_EQ(lightPhase(style, 5000), 0);
    style.animationSpeed = 12;
    EXPECT_TRUE(hasMovingLight(style));
    EXPECT_FLOAT_EQ(lightPhase(style, 50'000), 1);
    EXPECT_FLOAT_EQ(lightPhase(style, 75'000), 1.5F);
    EXPECT_FLOAT_EQ(lightPhase(style, 0), 100); // where the orbit ends and starts
    EXPECT_FLOAT_EQ(lightPhase(style, 5'050'000), 1);
    style.animationSpeed = -12;
    EXPECT_FLOAT_EQ(lightPhase(style, 50'000), 99);
    style.material = MaterialPreset::Glass;
    EXPECT_EQ(lightPhase(style, 50'000), 0);
    for (const std::int32_t speed :
         {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        style = carved(MaterialPreset::LuminousGlass);
        style.animationSpeed = speed;
        const float phase = lightPhase(style, std::numeric_limits<std::uint64_t>::max());
        EXPECT_GT(phase, 0);
        EXPECT_LE(phase, 100);
    }
}

TEST(MaterialOverlayCache, RendersOnceAndAMovingLightIntoOnePlace)
{
    MaterialOverlayCache cache(2 * 200 * 100);
    const auto ask = [&cache](const SurfaceStyle& style, float phase) {
        const auto constants = materialConstants(style, kPlace, phase, PerformanceProfile::Full);
        return cache.ensure(constants, [](const PixelView& pixels) { return pixels.row(99)[199] = 7, true; });
    };
    SurfaceStyle style = carved(MaterialPreset::LuminousGlass);
    const PixelView view = ask(style, 0.25F);
    EXPECT_EQ(view.size, (Size{200, 100}));
    EXPECT_EQ(ask(style, 0.25F).pixels, view.pixels);
    EXPECT_EQ(cache.rendered(), 1u);
    EXPECT_EQ(ask(style, 0.5F).pixels, view.pixels);
    EXPECT_EQ(cache.rendered(), 2u);
    for (int tint = 0; tint < 5; ++tint) {
        style.materialTint = static_cast<Color>(tint);
        ask(style, 0.5F);
    }
    EXPECT_EQ(cache.rendered(), 7u);
    EXPECT_EQ(cache.size(), 2u); // as many as there is room for
}

TEST(MaterialOverlayCache, TriesAgainAfterARenderingThatFailed)
{
    MaterialOverlayCache cache(200 * 100);
    const auto ask = [&cache](const Rect& rect, bool works) {
        const SurfaceStyle style = carved(MaterialPreset::Metal);
        const auto constants = materialConstants(style, rect, 0, PerformanceProfile::Full);
        return cache.ensure(constants, [works](const PixelView&) { return works; }).pixels != nullptr;
    };
    EXPECT_FALSE(ask(kPlace, false));
    EXPECT_TRUE(ask(kPlace, true));
    EXPECT_TRUE(ask(kPlace, false));           // cached
    EXPECT_FALSE(ask({0, 0, 201, 100}, true)); // there is no room for it at all
}

} // namespace
} // namespace vela
