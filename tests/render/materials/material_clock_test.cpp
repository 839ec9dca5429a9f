#include "vela/render/materials/material_clock.h"

#include "tests/render/materials/material_testing.h"

#include <gtest/gtest.h>
#include <limits>

namespace vela {
namespace {

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

} // namespace
} // namespace vela
