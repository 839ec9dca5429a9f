#include "vela/render/bitmaps/bitmap_geometry.h"

#include "tests/render/bitmaps/bitmap_testing.h"

#include "tests/render/layers/layer_testing.h"
#include "vela/theme/fields/record_scale.h"

namespace vela {
namespace {

TEST(BitmapGeometry, EachModeAnswersHitsAndOutlinesInItsOwnWay)
{
    const TintedBitmap skin(pictureOf(kNotched), {});
    const TintedBitmap mask = TintedBitmap::fromMask(pictureOf({"bbbwww"})); // opaque: its brightness counts
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
    const TintedBitmap skin(pictureOf({"..rrrr..", ".rrrrrr.", "rrrrrrrr", "rrrrrr.."}), {});
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
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, nullptr), surface);
    SurfaceGeometry& geometry = style.geometry.ensure();
    geometry.safeInsets = {1, 0, 2, 0};
    geometry.headerInsets = {0, 1, 0, 1};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, nullptr), (Rect{101, 50, 5, 4}));
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::headerInsets, nullptr), (Rect{100, 51, 8, 2}));

    const auto outlineOf = [](const std::vector<std::string>& rows) {
        return alphaRuns(TintedBitmap(pictureOf(rows), {}), {{0, 0, 8, 4}, {}}, {8, 4}, 16);
    };
    const RunMask leaning = outlineOf({"..rrrr..", ".rrrrrr.", "rrrrrrrr", "rrrrrr.."});
    geometry.textInsets = {0, 0, 3, 0};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, &leaning), (Rect{102, 50, 3, 4}));
    const RunMask soft = outlineOf({"........", "rrrrrrrr", "rrrrrrrr", "........"});
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, &soft), (Rect{100, 50, 5, 4}));
    geometry.textInsets = {2147483647, 0, 2147483647, 0};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, nullptr).width, 0);
}

// A plate whose frame is 12 pixels wide, on a monitor with twice as many.
TEST(BitmapGeometry, AFrameAndWhatItLeavesFreeGrowTogether)
{
    std::vector<std::string> rows(40, std::string(12, 'r') + std::string(16, 'g') + std::string(12, 'r'));
    const TintedBitmap plate(pictureOf(rows), {});
    SurfaceStyle style;
    style.shape = ShapeKind::Rect;
    style.useNineSlice = true;
    style.nineSlice = {12, 12, 12, 12};
    style.geometry.ensure().textInsets = {12, 12, 12, 12};
    const SurfaceStyle scaled = scaledToDpi(style, 192);
    const Rect surface{0, 0, 200, 90};
    EXPECT_EQ(roomOn(style, surface, &SurfaceGeometry::textInsets, nullptr), (Rect{12, 12, 176, 66}));
    EXPECT_EQ(roomOn(scaled, surface, &SurfaceGeometry::textInsets, nullptr), (Rect{24, 24, 152, 42}));
    const auto frameOf = [&](const SurfaceStyle& painted) {
        const Picture picture = drawLayer({0, 45, 200, 1}, [&](const LayerTarget& target) {
            fillBitmap(target, {ShapeKind::Rect, sizeOf(surface)}, plate,
                       bitmapPlacement(painted, sizeOf(surface)));
        });
        const auto inside = std::find_if_not(picture.pixels.begin(), picture.pixels.end(),
                                             [](Pixel pixel) { return pixel == 0xFFFF0000; });
        return inside - picture.pixels.begin();
    };
    EXPECT_EQ(frameOf(style), 12);
    EXPECT_EQ(frameOf(scaled), 24);
}

TEST(BitmapGeometry, ASurfaceBeyondAllMeasureKeepsItsShape)
{
    const TintedBitmap skin(pictureOf(kNotched), {});
    SurfaceStyle style;
    style.geometry.ensure().mode = AlphaHitMode::AlphaLayout;
    EXPECT_TRUE(bitmapOutline(style, {600, 400}, {&skin, nullptr}).has_value());
    EXPECT_FALSE(bitmapOutline(style, {INT32_MAX, INT32_MAX}, {&skin, nullptr}).has_value());
}

} // namespace
} // namespace vela
