#include "vela/render/materials/material_constants.h"

#include "tests/render/materials/material_testing.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

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

} // namespace
} // namespace vela
