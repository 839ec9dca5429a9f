#include "vela/render/shapes/icons.h"

#include "tests/render/layers/layer_testing.h"

#include <cmath>

namespace vela {
namespace {

constexpr Color kWhite = hexColor(0xFFFFFF);

Picture iconPicture(Icon icon, std::int32_t side, std::int32_t dpi, std::int32_t margin = 0)
{
    const std::int32_t whole = side + 2 * margin;
    return drawLayer({0, 0, whole, whole}, [&](const LayerTarget& target) {
        drawIcon(target, icon, {margin, margin, side, side}, dpi, kWhite);
    });
}

TEST(Icons, StraightLinesFillWholePixels)
{
    for (const std::int32_t dpi : {96, 120, 144, 168, 192, 240}) {
        SCOPED_TRACE(dpi);
        const std::int32_t side = captionIconSize(dpi);
        const std::int32_t pen = dpi < 168 ? 1 : 2;
        EXPECT_EQ(side, std::lround(10.0 * dpi / 96));
        const Picture frame = iconPicture(Icon::Maximize, side, dpi);
        for (std::int32_t at = pen; at < side - pen; ++at)
            for (std::int32_t across = 0; across < side; ++across) {
                const Pixel expected = across < pen || across >= side - pen ? 0xFFFFFFFF : 0U;
                ASSERT_EQ(frame.at(at, across), expected);
                ASSERT_EQ(frame.at(across, at), expected);
            }
    }
}

TEST(Icons, StayInTheirBoxAndLeaveAMark)
{
    for (int icon = 0; icon < kIconCount; ++icon)
        for (const std::int32_t dpi : {96, 144, 240}) {
            SCOPED_TRACE(icon * 1000 + dpi);
            const std::int32_t side = 14 * dpi / 96;
            const std::int32_t margin = 3;
            const Picture picture = iconPicture(static_cast<Icon>(icon), side, dpi, margin);
            EXPECT_GT(coveredArea(picture), side / 2.0);
            EXPECT_LT(coveredArea(picture), side * side / 2.0);
            for (std::int32_t y = 0; y < picture.size.height; ++y)
                for (std::int32_t x = 0; x < picture.size.width; ++x)
                    if (std::min(x, y) < margin || std::max(x, y) >= margin + side) {
                        ASSERT_EQ(picture.at(x, y), 0U) << x << "," << y;
                    }
        }
}

TEST(Icons, ChevronsMirrorEachOther)
{
    const std::int32_t side = 15;
    const Picture up = iconPicture(Icon::ChevronUp, side, 96);
    const Picture down = iconPicture(Icon::ChevronDown, side, 96);
    const Picture left = iconPicture(Icon::ChevronLeft, side, 96);
    for (std::int32_t y = 0; y < side; ++y)
        for (std::int32_t x = 0; x < side; ++x) {
            EXPECT_LE(largestDifference(up.at(x, y), down.at(x, side - 1 - y)), 1);
            EXPECT_LE(largestDifference(up.at(x, y), left.at(y, x)), 1);
        }
}

} // namespace
} // namespace vela
