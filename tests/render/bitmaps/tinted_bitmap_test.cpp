#include "vela/render/bitmaps/tinted_bitmap.h"

#include "tests/render/bitmaps/bitmap_testing.h"
#include "tests/render/layers/layer_testing.h"
#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/theme/fields/record_scale.h"

namespace vela {
namespace {

using Rows = std::vector<std::string>;

std::vector<std::string> lettersOf(const Picture& picture)
{
    std::vector<std::string> rows(static_cast<std::size_t>(picture.size.height));
    for (std::int32_t y = 0; y < picture.size.height; ++y)
        for (std::int32_t x = 0; x < picture.size.width; ++x)
            switch (picture.at(x, y)) {
            case 0: rows[static_cast<std::size_t>(y)] += '.'; break;
            case 0xFFFF0000: rows[static_cast<std::size_t>(y)] += 'r'; break;
            case 0xFF00FF00: rows[static_cast<std::size_t>(y)] += 'g'; break;
            case 0xFF0000FF: rows[static_cast<std::size_t>(y)] += 'b'; break;
            case 0xFFFFFFFF: rows[static_cast<std::size_t>(y)] += 'w'; break;
            case 0x80808080: rows[static_cast<std::size_t>(y)] += 'h'; break;
            default: rows[static_cast<std::size_t>(y)] += '?'; break;
            }
    return rows;
}

std::vector<std::string> painted(const TintedBitmap& bitmap, Size surface, const BitmapPlacement& placement,
                                 ShapeKind shape = ShapeKind::Rect)
{
    return lettersOf(drawLayer({0, 0, surface.width, surface.height}, [&](const LayerTarget& target) {
        fillBitmap(target, {shape, surface}, bitmap, placement);
    }));
}

TEST(TintedBitmap, IsPaintedAsItIsAtItsOwnSize)
{
    const TintedBitmap bitmap(pictureOf({"rgb", "h.w"}), {});
    EXPECT_EQ(bitmap.cover(), BitmapCover::Partial);
    EXPECT_EQ(painted(bitmap, {3, 2}, {{0, 0, 3, 2}, {}}), (Rows{"rgb", "h.w"}));
    EXPECT_EQ(painted(bitmap, {5, 4}, {{1, 1, 3, 2}, {}}), (Rows{".....", ".rgb.", ".h.w.", "....."}));
    EXPECT_EQ(painted(bitmap, {3, 2}, {{0, 0, 0, 2}, {}}), (Rows{"...", "..."}));
    // Only the shape's pixels are painted: a diamond of three by three is a cross.
    EXPECT_EQ(painted(TintedBitmap(pictureOf({"r"}), {}), {3, 3}, {{0, 0, 3, 3}, {}}, ShapeKind::Diamond),
              (Rows{".r.", "rrr", ".r."}));
    EXPECT_EQ(TintedBitmap(pictureOf({"rgb"}), {}).cover(), BitmapCover::Full);
}

TEST(TintedBitmap, NineSlicesKeepCornersAndStretchTheRest)
{
    const TintedBitmap bitmap(pictureOf({"rgr", "bwb", "rgr"}), {});
    const Insets ones{1, 1, 1, 1};
    EXPECT_EQ(painted(bitmap, {6, 4}, {{0, 0, 6, 4}, ones}), (Rows{"rggggr", "bwwwwb", "bwwwwb", "rggggr"}));
    EXPECT_EQ(painted(bitmap, {2, 2}, {{0, 0, 2, 2}, ones}), (Rows{"rr", "rr"}));
    // Margins that leave no middle, and nonsense from a skin, still paint within the bitmap.
    EXPECT_EQ(painted(bitmap, {4, 1}, {{0, 0, 4, 1}, {2, 0, 1, 0}}), (Rows{"bwwb"}));
    EXPECT_EQ(painted(bitmap, {3, 3}, {{0, 0, 3, 3}, {99, -5, 99, 99}}).size(), 3U);
}

// The margins cut out of the picture are its own pixels; those painted are as long as all lengths are there.
TEST(TintedBitmap, NineSlicesGrowWithTheDpi)
{
    const TintedBitmap bitmap(pictureOf({"rgr", "bwb", "rgr"}), {});
    const Insets ones{1, 1, 1, 1};
    const Rows doubled{"rrggrr", "rrggrr", "bbwwbb", "rrggrr", "rrggrr"};
    EXPECT_EQ(painted(bitmap, {6, 5}, {{0, 0, 6, 5}, ones, 192}), doubled);
    EXPECT_EQ(painted(bitmap, {2, 2}, {{0, 0, 2, 2}, ones, 480}), (Rows{"rr", "rr"}));
}

TEST(TintedBitmap, CoversASurfaceThatItHidesWhole)
{
    const TintedBitmap opaque(pictureOf({"rgb"}), {});
    const TintedBitmap holed(pictureOf({"r.b"}), {});
    SurfaceStyle style;
    const Size size{30, 20};
    EXPECT_EQ(coverOn(opaque, bitmapPlacement(style, size), size), BitmapCover::Full);
    EXPECT_EQ(coverOn(holed, bitmapPlacement(style, size), size), BitmapCover::Partial);
    style.geometry.ensure().paintInsets = {-3, 0, -2147483647, 0};
    EXPECT_EQ(coverOn(opaque, bitmapPlacement(style, size), size), BitmapCover::Full);
    for (const Insets& ring : {Insets{1, 0, 0, 0}, Insets{0, 0, 0, 1}, Insets{40, 0, 0, 0}}) {
        style.geometry.ensure().paintInsets = ring;
        EXPECT_EQ(coverOn(opaque, bitmapPlacement(style, size), size), BitmapCover::Partial);
    }
}

TEST(TintedBitmap, IsMadeWhereItsPictureLiesAndWeighsItsHalvedOnesToo)
{
    BitmapImage image{{64, 32}, std::vector<Pixel>(64 * 32, 0xFF102030)};
    const Pixel* const pixels = image.pixels.data();
    const TintedBitmap bitmap(std::move(image), {});
    EXPECT_EQ(bitmap.original().pixels.data(), pixels);
    EXPECT_EQ(bitmap.weight(), 2048U + 512 + 128 + 32 + 8 + 2);
}

// A skin may name any length.
TEST(TintedBitmap, HasNoAlphaOutsideItsPlacementWhateverTheLengths)
{
    constexpr std::int32_t kLimits[] = {INT32_MIN, -1, 0, 1, 7, 1 << 20, INT32_MAX};
    const TintedBitmap bitmap(pictureOf({"rgb", "hhw"}), {});
    for (const std::int32_t length : kLimits)
        for (const std::int32_t origin : kLimits)
            for (const std::int32_t margin : kLimits)
                for (const std::int32_t dpi : {1, 96, 480, INT32_MAX}) {
                    const Rect rect{origin, origin, length, length};
                    const BitmapPlacement placement{rect, {margin, margin, 1, margin}, dpi};
                    for (const std::int32_t at : kLimits) {
                        const bool inside = !isEmpty(intersection(rect, {at, at, 1, 1}));
                        EXPECT_TRUE(inside ? alphaAt(bitmap, placement, {at, at}) >= 128
                                           : alphaAt(bitmap, placement, {at, at}) == 0);
                    }
                }
    SurfaceStyle style;
    style.useNineSlice = true;
    for (const std::int32_t inset : kLimits)
        for (const std::int32_t length : {1, 30, INT32_MAX}) {
            const Insets all{inset, inset, inset, inset};
            style.nineSlice = style.geometry.ensure().paintInsets = all;
            style.geometry.ensure().hitInsets = all;
            const Size size{length, length};
            const SurfaceStyle large = scaledToDpi(style, 480);
            EXPECT_LE(alphaAt(bitmap, bitmapPlacement(large, size), {0, length - 1}), 255);
            if (hitSurface(large, ShapeKind::Rect, size, {0, 0}, {&bitmap, nullptr})) {
                EXPECT_LE(inset, 0);
            }
        }
}

TEST(TintedBitmap, BlendsBetweenPixelsWhenStretchedAndAveragesWhenReduced)
{
    const TintedBitmap bitmap(pictureOf({"rb"}), {});
    const Picture wide = drawLayer({0, 0, 4, 1}, [&](const LayerTarget& target) {
        fillBitmap(target, {ShapeKind::Rect, {4, 1}}, bitmap, {{0, 0, 4, 1}, {}});
    });
    EXPECT_EQ(wide.at(0, 0), 0xFFFF0000); // the pixel's centre lies beyond that of the bitmap's first
    EXPECT_LE(largestDifference(wide.at(1, 0), 0xFFBF0040), 1);
    EXPECT_LE(largestDifference(wide.at(2, 0), 0xFF4000BF), 1);

    std::vector<std::string> stripes(16, "wwwwwwww........");
    stripes[3] = stripes[7] = stripes[12] = "........wwwwwwww";
    const TintedBitmap large(pictureOf(stripes), {});
    const Picture small = drawLayer({0, 0, 1, 1}, [&](const LayerTarget& target) {
        fillBitmap(target, {ShapeKind::Rect, {1, 1}}, large, {{0, 0, 1, 1}, {}});
    });
    EXPECT_LE(largestDifference(small.at(0, 0), 0x80808080),
              3); // half of the pixels are white, wherever they lie
}

TEST(TintedBitmap, PartsFitTogether)
{
    const TintedBitmap bitmap(pictureOf({"rgbw", "h.wr", "bbgr"}), {});
    const BitmapPlacement placement{{2, 3, 29, 17}, {1, 1, 1, 0}};
    const auto part = [&](const Rect& visible) {
        return drawLayer(visible, [&](const LayerTarget& target) {
            fillBitmap(target, {ShapeKind::RoundedRect, {33, 22}}, bitmap, placement);
        });
    };
    const Picture whole = part({0, 0, 33, 22});
    const Rect visible{11, 2, 20, 13};
    EXPECT_TRUE(
        matches(part(visible), visible, 0, [&](std::int32_t x, std::int32_t y) { return whole.at(x, y); }));
}

TEST(AlphaRuns, LieWhereTheAlphaReachesTheThreshold)
{
    const TintedBitmap bitmap(pictureOf(kNotched), {});
    const auto rowsOf = [](const RunMask& mask) {
        Rows rows;
        for (std::int32_t y = 0; y < mask.size().height; ++y) {
            rows.emplace_back(static_cast<std::size_t>(mask.size().width), '.');
            for (const Span* run = mask.rowBegin(y); run != mask.rowEnd(y); ++run)
                std::fill(rows.back().begin() + run->begin, rows.back().begin() + run->end, 'r');
        }
        return rows;
    };
    EXPECT_EQ(rowsOf(alphaRuns(bitmap, {{0, 0, 6, 4}, {}}, {6, 4}, 16)), kNotched);
    EXPECT_EQ(rowsOf(alphaRuns(bitmap, {{1, 1, 6, 4}, {}}, {6, 4}, 0)),
              (Rows{"......", ".rrrrr", ".rrrrr", ".rrrrr"}));
    const TintedBitmap faint(pictureOf({"hhh"}), {});
    EXPECT_EQ(rowsOf(alphaRuns(faint, {{0, 0, 3, 1}, {}}, {3, 1}, 128)), (Rows{"rrr"}));
    EXPECT_EQ(rowsOf(alphaRuns(faint, {{0, 0, 3, 1}, {}}, {3, 1}, 129)), (Rows{"..."})); // empty is allowed
}

} // namespace
} // namespace vela
