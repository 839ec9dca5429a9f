#include "vela/render/text/glyph_painter.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vela {
namespace {

constexpr Color kBackground = hexColor(0x206080);
constexpr Color kText = hexColor(0xE0A010);
constexpr Size kSize{6, 5};

// A mask whose every pixel is covered so much, in red, green and blue.
GlyphMask block(Rect box, std::array<std::uint8_t, 3> coverage)
{
    GlyphMask mask{box, {}};
    for (std::int32_t i = 0; i < box.width * box.height; ++i)
        mask.coverage.insert(mask.coverage.end(), coverage.begin(), coverage.end());
    return mask;
}

std::vector<Pixel> drawn(const GlyphMask& mask, Point pen, float gamma = 1.4F)
{
    std::vector<Pixel> pixels(static_cast<std::size_t>(kSize.width * kSize.height),
                              premultiplied(kBackground, 255));
    TextLayout layout;
    layout.addGlyph(mask, pen);
    GlyphPainter(gamma).draw({pixels.data(), kSize, kSize.width}, {}, layout, kText);
    return pixels;
}

unsigned channelOf(Pixel pixel, unsigned shift) { return pixel >> shift & 0xFF; }

TEST(GlyphPainterTest, CoverageMixesEachChannelOfItsOwn)
{
    const Pixel all = drawn(block({0, 0, 1, 1}, {255, 255, 255}), {2, 2})[2 * 6 + 2];
    EXPECT_EQ(all, premultiplied(kText, 255));
    const Pixel some = drawn(block({0, 0, 1, 1}, {255, 0, 128}), {2, 2})[2 * 6 + 2];
    EXPECT_EQ(channelOf(some, 16), redOf(kText));
    EXPECT_EQ(channelOf(some, 8), greenOf(kBackground));
    EXPECT_LT(channelOf(some, 0), blueOf(kBackground));
    EXPECT_GT(channelOf(some, 0), blueOf(kText));
}

// Half covered, numbers meet in the middle; light does above it, and more so the steeper the exponent.
TEST(GlyphPainterTest, MixingIsDoneInLight)
{
    const auto half = [](float gamma) {
        return channelOf(drawn(block({0, 0, 1, 1}, {128, 128, 128}), {2, 2}, gamma)[2 * 6 + 2], 16);
    };
    const unsigned middle = (redOf(kText) + redOf(kBackground)) / 2;
    EXPECT_NEAR(half(1.0F), middle, 1);
    EXPECT_GT(half(1.4F), middle + 8);
    EXPECT_GT(half(2.2F), half(1.4F) + 8);
    EXPECT_EQ(half(0.0F), half(1.0F)); // out of the system's range
    EXPECT_EQ(half(9.0F), half(2.2F));
    // What is not covered comes back from light as the number it was, and so does what is.
    for (unsigned number = 0; number < 256; ++number) {
        const auto level = static_cast<std::uint8_t>(number);
        std::vector<Pixel> pixels(1, premultiplied(rgb(level, level, level), 255));
        const std::vector<Pixel> before = pixels;
        const GlyphMask faint = block({0, 0, 1, 1}, {0, 0, 1});
        TextLayout layout;
        layout.addGlyph(faint, {});
        GlyphPainter(1.4F).draw({pixels.data(), {1, 1}, 1}, {}, layout, rgb(level, level, level));
        EXPECT_EQ(pixels, before) << number;
    }
}

TEST(GlyphPainterTest, NothingIsDrawnOutsideThePixels)
{
    const GlyphMask mask = block({-2, -3, 4, 4}, {255, 255, 255});
    for (std::int32_t y = -6; y < 12; ++y) {
        for (std::int32_t x = -6; x < 12; ++x) {
            const std::vector<Pixel> pixels = drawn(mask, {x, y});
            const Rect seen = intersection({x - 2, y - 3, 4, 4}, {0, 0, kSize.width, kSize.height});
            EXPECT_EQ(std::count(pixels.begin(), pixels.end(), premultiplied(kText, 255)),
                      seen.width * seen.height);
        }
    }
}

} // namespace
} // namespace vela
