#include "vela/theme/color/contrast.h"

#include "vela/theme/color/oklab.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

constexpr Color kBlack = hexColor(0x000000);
constexpr Color kWhite = hexColor(0xFFFFFF);

TEST(Contrast, MatchesPublishedRatios)
{
    const struct {
        std::uint32_t one;
        std::uint32_t other;
        float ratio;
    } rows[] = {
        {0x000000, 0xFFFFFF, 21.0F}, {0x767676, 0xFFFFFF, 4.54F}, {0x777777, 0xFFFFFF, 4.48F},
        {0xFF0000, 0xFFFFFF, 4.00F}, {0x0000FF, 0xFFFFFF, 8.59F}, {0x00FF00, 0x000000, 15.30F},
        {0x123456, 0x123456, 1.0F},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(contrastRatio(hexColor(row.one), hexColor(row.other)), row.ratio, 0.005F)
            << std::hex << row.one;
        EXPECT_NEAR(contrastRatio(hexColor(row.other), hexColor(row.one)), row.ratio, 0.005F);
    }
}

TEST(Contrast, TakesTheWorstPlaceOfARangeOfTones)
{
    const ToneRange tones(hexColor(0x404040), hexColor(0xC0C0C0));
    EXPECT_FLOAT_EQ(contrastRatio(kWhite, tones), contrastRatio(kWhite, hexColor(0xC0C0C0)));
    EXPECT_FLOAT_EQ(contrastRatio(kBlack, tones), contrastRatio(kBlack, hexColor(0x404040)));
    EXPECT_FLOAT_EQ(contrastRatio(hexColor(0x808080), tones), 1.0F);
}

TEST(Contrast, LeavesAColourThatReachesTheRatioAndNudgesOthersJustFarEnough)
{
    const ToneRange paper(kWhite);
    EXPECT_EQ(reaching(hexColor(0x1B1B1B), paper, kTextContrast), hexColor(0x1B1B1B));
    const Color pale = hexColor(0x8FC7E8);
    const Color nudged = reaching(pale, paper, kTextContrast);
    EXPECT_GE(contrastRatio(nudged, paper), kTextContrast);
    EXPECT_LT(contrastRatio(nudged, paper), kTextContrast + 0.1F);
    // Still the same blue, only darker.
    EXPECT_GT(blueOf(nudged), greenOf(nudged));
    EXPECT_GT(greenOf(nudged), redOf(nudged));
}

TEST(Contrast, StaysOnItsSideWhileThatSideGoesFarEnough)
{
    const Color nudged = reaching(hexColor(0x909090), hexColor(0x606060), kMarkContrast);
    EXPECT_GT(relativeLuminance(nudged), relativeLuminance(hexColor(0x909090)));
    // White is not 4.5:1 on this grey, so light text turns dark.
    EXPECT_LT(relativeLuminance(reaching(hexColor(0xB0B0B0), hexColor(0x9A9A9A), kTextContrast)), 0.1F);
}

TEST(Contrast, PicksTheFirstColourThatReachesAndElseNudgesTheNearest)
{
    const Color navy = hexColor(0x14214A);
    const Color grey = hexColor(0x4A5880);
    EXPECT_EQ(pickReaching({hexColor(0xC0C8E0), grey, navy}, kWhite, kTextContrast), grey);
    const Color nudged = pickReaching({hexColor(0xF0F0F0), hexColor(0x8892B0)}, kWhite, kTextContrast);
    EXPECT_LT(visualDistance(nudged, hexColor(0x8892B0)), visualDistance(nudged, hexColor(0xF0F0F0)));
}

TEST(Contrast, MovesAFaceOffTheMiddleTonesThatNoTextIsReadOn)
{
    for (const std::uint32_t grey : {0x6F6F6FU, 0x757575U, 0x767676U, 0x7A7A7AU, 0x808080U}) {
        for (const float shading : {0.0F, 0.02F, 0.05F}) {
            const Color face = readableFace(hexColor(grey), shading, 5.4F);
            EXPECT_TRUE(isReadableFace(face, shading, 5.4F)) << std::hex << grey;
            EXPECT_LT(visualDistance(face, hexColor(grey)), 0.16F) << std::hex << grey;
        }
    }
    EXPECT_EQ(readableFace(hexColor(0x202020), 0.02F, 5.4F), hexColor(0x202020));
}

} // namespace
} // namespace vela
