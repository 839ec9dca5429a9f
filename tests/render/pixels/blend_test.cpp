#include "vela/render/pixels/blend.h"

#include <gtest/gtest.h>

#include <vector>

namespace vela {
namespace {

unsigned channelOf(Pixel pixel, int channel) { return pixel >> (8 * channel) & 0xFF; }

// Every alpha over every level, at every place of a group of four.
TEST(Blend, IsSourceOverRoundedToTheNearestLevel)
{
    for (unsigned alpha = 0; alpha < 256; ++alpha) {
        std::vector<Pixel> source;
        std::vector<Pixel> target;
        for (unsigned level = 0; level < 255; ++level) { // not a multiple of four
            source.push_back(makePixel(alpha * level / 255, alpha, 0, alpha));
            target.push_back(makePixel(level, 255 - level, level / 2, 255 - level / 3));
        }
        const std::vector<Pixel> before = target;
        const Size size{static_cast<std::int32_t>(target.size()), 1};
        blendOver({source.data(), size, size.width}, {target.data(), size, size.width});
        for (std::size_t i = 0; i < target.size(); ++i)
            for (int channel = 0; channel < 4; ++channel) {
                const unsigned rest = (2 * channelOf(before[i], channel) * (255 - alpha) + 255) / 510;
                ASSERT_EQ(channelOf(target[i], channel), channelOf(source[i], channel) + rest)
                    << alpha << ' ' << i << ' ' << channel;
            }
    }
}

TEST(Blend, StopsAtTheBrightestLevel)
{
    Pixel source = 0x01FFFFFF; // brighter than its alpha allows
    Pixel target = 0xFF808080;
    blendOver({&source, {1, 1}, 1}, {&target, {1, 1}, 1});
    EXPECT_EQ(target, 0xFFFFFFFFU);
}

} // namespace
} // namespace vela
