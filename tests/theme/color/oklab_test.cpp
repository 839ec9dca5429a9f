#include "vela/theme/color/oklab.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(Oklab, AgreesWithItsPublishedValuesAndGoesBackToTheSameColour)
{
    const struct {
        std::uint32_t color;
        Oklab lab;
    } rows[] = {
        {0xFFFFFF, {1.0F, 0.0F, 0.0F}},
        {0xFF0000, {0.628F, 0.225F, 0.126F}},
        {0x00FF00, {0.866F, -0.234F, 0.179F}},
        {0x0000FF, {0.452F, -0.032F, -0.312F}},
    };
    for (const auto& row : rows) {
        const Oklab lab = oklabOf(hexColor(row.color));
        EXPECT_NEAR(lab.lightness, row.lab.lightness, 0.001F);
        EXPECT_NEAR(lab.a, row.lab.a, 0.001F);
        EXPECT_NEAR(lab.b, row.lab.b, 0.001F);
    }
    for (std::uint32_t color = 0; color < 0x1000000; color += 0x010307)
        EXPECT_EQ(colorOf(oklabOf(hexColor(color))), hexColor(color)) << std::hex << color;
}

} // namespace
} // namespace vela
