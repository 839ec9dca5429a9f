#include "vela/render/text/text_layout.h"

#include "vela/render/text/glyph_painter.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vela {
namespace {

constexpr Color kText = hexColor(0xE0A010);

TEST(TextLayoutTest, InkIsAroundLettersAndLines)
{
    const GlyphMask letter{{1, -8, 5, 9}, std::vector<std::uint8_t>(3 * 5 * 9, 9)};
    const GlyphMask blank{};
    TextLayout layout;
    layout.addGlyph(blank, {-50, -50});
    EXPECT_TRUE(isEmpty(layout.inkBounds));
    EXPECT_TRUE(layout.glyphs.empty());
    layout.addGlyph(letter, {10, 20});
    EXPECT_EQ(layout.inkBounds, (Rect{11, 12, 5, 9}));
    layout.addLine({0, 22, 30, 1});
    EXPECT_EQ(layout.inkBounds, (Rect{0, 12, 30, 11}));
    std::vector<Pixel> pixels(30 * 30, 0);
    GlyphPainter(1.0F).draw({pixels.data(), {30, 30}, 30}, {-5, 0}, layout, kText);
    EXPECT_EQ(std::count(pixels.begin(), pixels.end(), premultiplied(kText, 255)), 25);
}

} // namespace
} // namespace vela
