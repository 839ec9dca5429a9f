#include "vela/theme/records/surface_tones.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

constexpr Color kBlack = hexColor(0x000000);
constexpr Color kWhite = hexColor(0xFFFFFF);

TEST(SurfaceTones, SeesGradientsTheirDarkMiddlesAndWhatShinesThrough)
{
    SurfaceStyle style;
    style.fill = hexColor(0x808080);
    const ToneRange under(kBlack, hexColor(0x101010));
    EXPECT_EQ(surfaceTones(style, under).lightest, hexColor(0x808080));

    style.drawFill = false;
    EXPECT_EQ(surfaceTones(style, under).lightest, hexColor(0x101010));

    style.useGradient = true;
    style.gradientStart = hexColor(0xFF0000);
    style.gradientEnd = hexColor(0x0000FF);
    EXPECT_LT(relativeLuminance(surfaceTones(style, under).darkest), relativeLuminance(style.gradientEnd));

    style.gradientStart = kWhite;
    style.gradientEnd = kWhite;
    style.opacity = 128;
    EXPECT_EQ(surfaceTones(style, under).darkest, hexColor(0x808080));
    EXPECT_EQ(surfaceTones(style, under).lightest, hexColor(0x888888));

    style.useGradientMid = true;
    style.gradientMid = kBlack;
    EXPECT_EQ(surfaceTones(style, under).darkest, kBlack);
}

} // namespace
} // namespace vela
