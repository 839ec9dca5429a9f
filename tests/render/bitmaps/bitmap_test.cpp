#include "tests/render/layers/layer_testing.h"
#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/bitmaps/bitmap_tint.h"

#include <string>

namespace vela {
namespace {

constexpr Channels kOrange{240, 120, 30, 200};

BitmapTint tintOf(TintMode mode, MaskChannel channel = MaskChannel::Alpha)
{
    BitmapTint tint;
    tint.mode = mode;
    tint.maskChannel = channel;
    tint.primary.color = hexColor(0x0080FF);
    tint.secondary.color = hexColor(0x200000);
    return tint;
}

TEST(BitmapTint, EachModeHasItsOwnReadingOfMaskAndColour)
{
    // The luminance of the source is (77 * 240 + 150 * 120 + 29 * 30) / 256 = 145, a mask of 145/255.
    const struct {
        TintMode mode;
        MaskChannel channel;
        Channels expected;
    } rows[] = {
        {TintMode::None, MaskChannel::Alpha, kOrange},
        {TintMode::Monochrome, MaskChannel::Alpha, {0, 128, 255, 200}},
        {TintMode::Monochrome, MaskChannel::Red, {0, 128, 255, 188}},        // 240 of 200
        {TintMode::Monochrome, MaskChannel::Green, {0, 128, 255, 94}},       // 120 of 200
        {TintMode::Monochrome, MaskChannel::Blue, {0, 128, 255, 23}},        // 30 of 200
        {TintMode::Monochrome, MaskChannel::Brightness, {0, 128, 255, 188}}, // the largest channel
        {TintMode::Monochrome, MaskChannel::Rgb, {0, 128, 255, 101}},        // their mean, 130, of 200
        {TintMode::LumaMask, MaskChannel::Alpha, {14, 73, 145, 200}},
        {TintMode::AlphaMask, MaskChannel::Alpha, {52, 126, 206, 255}}, // 200/255 of the way, then opaque
        {TintMode::Colorize, MaskChannel::Alpha, {0, 60, 30, 200}},
        {TintMode::Colorize, MaskChannel::Green, {127, 92, 30, 200}},   // 120/255 of the way
        {TintMode::PaletteMap, MaskChannel::Alpha, {14, 73, 145, 200}}, // no palette: the two colours
    };
    for (const auto& row : rows) {
        const Channels is = tinted(kOrange, tintOf(row.mode, row.channel));
        EXPECT_LE(largestDifference(pixelOf(is), pixelOf(row.expected)), 1)
            << static_cast<int>(row.mode) << " by " << static_cast<int>(row.channel) << ": " << is.red << ","
            << is.green << "," << is.blue << "," << is.alpha;
    }
}

TEST(BitmapTint, AmountThresholdInversionAndLuminanceModifyEveryMode)
{
    BitmapTint tint = tintOf(TintMode::Colorize);
    tint.amount = 0;
    EXPECT_EQ(tinted(kOrange, tint), kOrange);
    tint.amount = 128;
    EXPECT_EQ(tinted(kOrange, tint), (Channels{120, 90, 30, 200}));

    tint = tintOf(TintMode::Monochrome);
    tint.coverageThreshold = 201;
    EXPECT_EQ(tinted(kOrange, tint).alpha, 0);
    tint.invertMask = true;
    tint.coverageThreshold = 0;
    EXPECT_EQ(tinted(kOrange, tint).alpha, 55);

    tint = tintOf(TintMode::LumaMask);
    tint.invertMask = true; // dark parts take the colour
    EXPECT_EQ(tinted({0, 0, 0, 255}, tint), (Channels{0, 128, 255, 255}));

    const auto luminance = [](const Channels& c) { return (77 * c.red + 150 * c.green + 29 * c.blue) / 256; };
    for (const TintMode mode :
         {TintMode::Monochrome, TintMode::LumaMask, TintMode::Colorize, TintMode::PaletteMap})
        for (const Channels source : {kOrange, Channels{20, 10, 5, 255}, Channels{250, 255, 240, 255}}) {
            tint = tintOf(mode);
            tint.preserveLuminance = true;
            EXPECT_NEAR(luminance(tinted(source, tint)), luminance(source), 3) << static_cast<int>(mode);
        }
}

TEST(BitmapTint, SpreadsThePaletteOverTheLuminance)
{
    BitmapTint tint = tintOf(TintMode::PaletteMap);
    tint.palette = {{hexColor(0x100000), {}}, {hexColor(0x00FF00), {}}, {hexColor(0xFFFFFF), {}}};
    const auto mapped = [&](int grey) { return tinted({grey, grey, grey, 255}, tint); };
    EXPECT_EQ(mapped(0), (Channels{16, 0, 0, 255}));
    EXPECT_EQ(mapped(255), (Channels{255, 255, 255, 255}));
    EXPECT_LE(largestDifference(pixelOf(mapped(64)), pixelOf({8, 128, 0, 255})), 1);
    EXPECT_LE(largestDifference(pixelOf(mapped(128)), pixelOf({1, 255, 1, 255})), 1);
    tint.palette.resize(1);
    EXPECT_EQ(mapped(200), (Channels{16, 0, 0, 255}));
}

// A picture from rows of letters: '.' transparent, 'r', 'g', 'b', 'w' opaque colours, 'h' half-transparent
// white.
BitmapImage pictureOf(const std::vector<std::string>& rows)
{
    BitmapImage image{{static_cast<std::int32_t>(rows[0].size()), static_cast<std::int32_t>(rows.size())},
                      {}};
    for (const std::string& row : rows)
        for (const char letter : row)
            image.pixels.push_back(letter == 'r'   ? 0xFFFF0000
                                   : letter == 'g' ? 0xFF00FF00
                                   : letter == 'b' ? 0xFF0000FF
                                   : letter == 'w' ? 0xFFFFFFFF
                                   : letter == 'h' ? 0x80FFFFFF
                                                   : 0x00000000);
    return image;
}

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

std::vector<std::string> painted(const SkinBitmap& bitmap, Size surface, const BitmapPlacement& placement,
                                 ShapeKind shape = ShapeKind::Rect)
{
    return lettersOf(drawLayer({0, 0, surface.width, surface.height}, [&](const LayerTarget& target) {
        fillBitmap(target, {shape, surface}, bitmap, placement);
    }));
}

using Rows = std::vector<std::string>;

TEST(SkinBitmap, IsPaintedAsItIsAtItsOwnSize)
{
    const SkinBitmap bitmap(pictureOf({"rgb", "h.w"}), {});
    EXPECT_EQ(bitmap.cover(), BitmapCover::Partial);
    EXPECT_EQ(painted(bitmap, {3, 2}, {{0, 0, 3, 2}, {}}), (Rows{"rgb", "h.w"}));
    EXPECT_EQ(painted(bitmap, {5, 4}, {{1, 1, 3, 2}, {}}), (Rows{".....", ".rgb.", ".h.w.", "....."}));
    EXPECT_EQ(painted(bitmap, {3, 2}, {{0, 0, 0, 2}, {}}), (Rows{"...", "..."}));
    // Only the shape's pixels are painted: a diamond of three by three is a cross.
    EXPECT_EQ(painted(SkinBitmap(pictureOf({"r"}), {}), {3, 3}, {{0, 0, 3, 3}, {}}, ShapeKind::Diamond),
              (Rows{".r.", "rrr", ".r."}));
    EXPECT_EQ(SkinBitmap(pictureOf({"rgb"}), {}).cover(), BitmapCover::Full);
}

TEST(SkinBitmap, NineSlicesKeepCornersAndStretchTheRest)
{
    const SkinBitmap bitmap(pictureOf({"rgr", "bwb", "rgr"}), {});
    const Insets ones{1, 1, 1, 1};
    EXPECT_EQ(painted(bitmap, {6, 4}, {{0, 0, 6, 4}, ones}), (Rows{"rggggr", "bwwwwb", "bwwwwb", "rggggr"}));
    EXPECT_EQ(painted(bitmap, {2, 2}, {{0, 0, 2, 2}, ones}), (Rows{"rr", "rr"}));
    // Margins that leave no middle, and nonsense from a skin, still paint within the bitmap.
    EXPECT_EQ(painted(bitmap, {4, 1}, {{0, 0, 4, 1}, {2, 0, 1, 0}}), (Rows{"bwwb"}));
    EXPECT_EQ(painted(bitmap, {3, 3}, {{0, 0, 3, 3}, {99, -5, 99, 99}}).size(), 3U);
}

TEST(SkinBitmap, BlendsBetweenPixelsWhenStretchedAndAveragesWhenReduced)
{
    const SkinBitmap bitmap(pictureOf({"rb"}), {});
    const Picture wide = drawLayer({0, 0, 4, 1}, [&](const LayerTarget& target) {
        fillBitmap(target, {ShapeKind::Rect, {4, 1}}, bitmap, {{0, 0, 4, 1}, {}});
    });
    EXPECT_EQ(wide.at(0, 0), 0xFFFF0000); // the pixel's centre lies beyond that of the bitmap's first
    EXPECT_LE(largestDifference(wide.at(1, 0), 0xFFBF0040), 1);
    EXPECT_LE(largestDifference(wide.at(2, 0), 0xFF4000BF), 1);

    std::vector<std::string> stripes(16, "wwwwwwww........");
    stripes[3] = stripes[7] = stripes[12] = "........wwwwwwww";
    const SkinBitmap large(pictureOf(stripes), {});
    const Picture small = drawLayer({0, 0, 1, 1}, [&](const LayerTarget& target) {
        fillBitmap(target, {ShapeKind::Rect, {1, 1}}, large, {{0, 0, 1, 1}, {}});
    });
    EXPECT_LE(largestDifference(small.at(0, 0), 0x80808080),
              3); // half of the pixels are white, wherever they lie
}

TEST(SkinBitmap, PartsFitTogether)
{
    const SkinBitmap bitmap(pictureOf({"rgbw", "h.wr", "bbgr"}), {});
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

const std::vector<std::string> kNotched{"..rr..", ".rrrr.", "rr..rr", "rrrrrr"};

TEST(BitmapOutline, IsTheRunsWhereTheAlphaReachesTheThreshold)
{
    const SkinBitmap bitmap(pictureOf(kNotched), {});
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
    const SkinBitmap faint(pictureOf({"hhh"}), {});
    EXPECT_EQ(rowsOf(alphaRuns(faint, {{0, 0, 3, 1}, {}}, {3, 1}, 128)), (Rows{"rrr"}));
    EXPECT_EQ(rowsOf(alphaRuns(faint, {{0, 0, 3, 1}, {}}, {3, 1}, 129)), (Rows{"..."})); // empty is allowed
}

TEST(BitmapGeometry, EachModeAnswersHitsAndOutlinesInItsOwnWay)
{
    const SkinBitmap skin(pictureOf(kNotched), {});
    const SkinBitmap mask = SkinBitmap::fromMask(pictureOf({"bbbwww"})); // opaque: its brightness counts
    const Point notch{2, 2}, corner{0, 0}, left{0, 3};
    const struct {
        AlphaHitMode mode;
        SurfaceBitmaps bitmaps;
        bool shaped, atNotch, atCorner, atLeft;
    } rows[] = {
        {AlphaHitMode::ShapeFallback, {&skin, &mask}, false, true, true, true},
        {AlphaHitMode::SkinAlphaHit, {&skin, nullptr}, false, false, false, true},
        {AlphaHitMode::SkinAlphaHit, {}, false, true, true, true}, // no bitmap: the shape decides
        {AlphaHitMode::AlphaLayout, {&skin, &mask}, true, false, false, true},
        {AlphaHitMode::MaskLayout, {&skin, &mask}, true, true, true, true},
        {AlphaHitMode::MaskLayout, {&skin, nullptr}, false, true, true, true},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto& row = rows[i];
        SCOPED_TRACE(i);
        SurfaceStyle style;
        style.shape = ShapeKind::Rect;
        style.geometry.ensure().mode = row.mode;
        const Size size{6, 4};
        EXPECT_EQ(bitmapOutline(style, size, row.bitmaps).has_value(), row.shaped);
        EXPECT_EQ(hitSurface(style, style.shape, size, notch, row.bitmaps), row.atNotch);
        EXPECT_EQ(hitSurface(style, style.shape, size, corner, row.bitmaps), row.atCorner);
        EXPECT_EQ(hitSurface(style, style.shape, size, left, row.bitmaps), row.atLeft);
        style.geometry.ensure().hitInsets = {1, 0, 0, 0};
        EXPECT_FALSE(hitSurface(style, style.shape, size, left, row.bitmaps));
    }
    SurfaceStyle bySwitch;
    bySwitch.useSkinAlphaHitTest = true;
    EXPECT_EQ(alphaHitMode(bySwitch, {&skin, nullptr}), AlphaHitMode::SkinAlphaHit);
}

TEST(BitmapGeometry, ContentTakesTheColumnsFreeInItsWholeBand)
{
    const SkinBitmap skin(pictureOf({"..rrrr..", ".rrrrrr.", "rrrrrrrr", "rrrrrr.."}), {});
    const RunMask outline = alphaRuns(skin, {{0, 0, 8, 4}, {}}, {8, 4}, 16);
    SurfaceGeometry geometry;
    EXPECT_EQ(layoutColumns(geometry, outline, 3), (Span{2, 6})); // one band: what all rows have in common
    geometry.bandHeight = 2;
    EXPECT_EQ(layoutColumns(geometry, outline, 1), (Span{2, 6}));
    EXPECT_EQ(layoutColumns(geometry, outline, 2), (Span{0, 6}));
    geometry.layoutInsets = {-2147483647, -9, -2147483647, 0}; // a skin's nonsense stays within the outline
    EXPECT_EQ(layoutColumns(geometry, outline, 1), (Span{2, 6}));
    geometry.layoutInsets = {1, 1, 0, 0}; // bands start below the inset
    EXPECT_TRUE(layoutColumns(geometry, outline, 0).empty());
    EXPECT_EQ(layoutColumns(geometry, outline, 1), (Span{1, 7}));
    EXPECT_EQ(layoutColumns(geometry, outline, 3), (Span{1, 6}));
}

TEST(BitmapGeometry, LeavesRoomInsideItsInsetsAndItsOutline)
{
    SurfaceStyle style;
    const Rect surface{100, 50, 8, 4};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, 96, nullptr), surface);
    SurfaceGeometry& geometry = style.geometry.ensure();
    geometry.safeInsets = {1, 0, 2, 0};
    geometry.headerInsets = {0, 1, 0, 1};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, 96, nullptr), (Rect{101, 50, 5, 4}));
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, 192, nullptr), (Rect{102, 50, 2, 4}));
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::headerInsets, 96, nullptr), (Rect{100, 51, 8, 2}));

    const auto outlineOf = [](const std::vector<std::string>& rows) {
        return alphaRuns(SkinBitmap(pictureOf(rows), {}), {{0, 0, 8, 4}, {}}, {8, 4}, 16);
    };
    const RunMask leaning = outlineOf({"..rrrr..", ".rrrrrr.", "rrrrrrrr", "rrrrrr.."});
    geometry.textInsets = {0, 0, 3, 0};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, 96, &leaning), (Rect{102, 50, 3, 4}));
    const RunMask soft = outlineOf({"........", "rrrrrrrr", "rrrrrrrr", "........"});
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, 96, &soft), (Rect{100, 50, 5, 4}));
    geometry.textInsets = {2147483647, 0, 2147483647, 0};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, 480, nullptr).width, 0);
}

} // namespace
} // namespace vela
