#include "vela/render/bitmaps/bitmap_cache.h"

#include "vela/render/bitmaps/surface_outline.h"

#include <gtest/gtest.h>

#include <map>

namespace vela {
namespace {

// Files by name; each decoding is noted.
std::map<std::wstring, Size>& files()
{
    static std::map<std::wstring, Size> all;
    return all;
}

BitmapImage decodeFake(const std::wstring& file)
{
    const auto found = files().find(file);
    if (found == files().end())
        return {};
    const auto count =
        static_cast<std::size_t>(found->second.width) * static_cast<std::size_t>(found->second.height);
    return {found->second, std::vector<Pixel>(count, makePixel(200, 100, 50, 255))};
}

SurfaceStyle styleWith(const wchar_t* path)
{
    SurfaceStyle style;
    style.image.ensure().path = path;
    return style;
}

TEST(BitmapCacheTest, DecodesEachPictureOnceForEachTint)
{
    files() = {{L"skin\\a.png", {4, 2}}};
    PictureStore store({1 << 20, 100});
    BitmapCache cache(store, decodeFake);
    EXPECT_EQ(cache.find(styleWith(L"a.png")).skin, nullptr); // no folder yet
    EXPECT_EQ(cache.decoded(), 0u);
    cache.setFolder(L"skin");
    const auto first = cache.find(styleWith(L"a.png")).skin;
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->size(), (Size{4, 2}));
    EXPECT_EQ(cache.find(styleWith(L"a.png")).skin, first);
    EXPECT_EQ(cache.decoded(), 1u);

    SurfaceStyle tinted = styleWith(L"a.png");
    tinted.image.ensure().tint.mode = TintMode::Monochrome;
    EXPECT_NE(cache.find(tinted).skin, first);
    EXPECT_EQ(cache.decoded(), 2u);

    EXPECT_EQ(cache.find(styleWith(L"missing.png")).skin, nullptr);
    EXPECT_EQ(cache.find(styleWith(L"missing.png")).skin, nullptr); // not looked for again
    EXPECT_EQ(cache.decoded(), 3u);
    EXPECT_EQ(cache.find(styleWith(L"../a.png")).skin, nullptr); // never looked for
    EXPECT_EQ(cache.find(SurfaceStyle{}).skin, nullptr);
    EXPECT_EQ(cache.decoded(), 3u);

    cache.setFolder(L"other");
    EXPECT_EQ(cache.find(styleWith(L"a.png")).skin, nullptr);
    EXPECT_EQ(first->size(), (Size{4, 2})); // whoever still paints with it may
}

TEST(BitmapCacheTest, LoadsTheMaskOnlyForTheModeThatNeedsIt)
{
    files() = {{L"skin\\a.png", {4, 2}}, {L"skin\\m.png", {4, 2}}};
    PictureStore store({1 << 20, 100});
    BitmapCache cache(store, decodeFake);
    cache.setFolder(L"skin");
    SurfaceStyle style = styleWith(L"a.png");
    style.geometry.ensure().maskPath = L"m.png";
    EXPECT_EQ(cache.find(style).mask, nullptr);
    style.geometry.ensure().mode = AlphaHitMode::MaskLayout;
    EXPECT_NE(cache.find(style).mask, nullptr);
}

TEST(BitmapCacheTest, KeepsAnOutlineFromPaintToPaint)
{
    files() = {{L"s\\a.png", {4, 2}}};
    PictureStore store({1 << 20, 100});
    BitmapCache cache(store, decodeFake);
    cache.setFolder(L"s");
    SurfaceStyle style = styleWith(L"a.png");
    const LoadedBitmaps bitmaps = cache.find(style);
    EXPECT_EQ(surfaceOutline(style, {40, 20}, bitmaps), nullptr); // its shape is the outline
    style.geometry.ensure().mode = AlphaHitMode::AlphaLayout;
    const RunMask* const outline = surfaceOutline(style, {40, 20}, bitmaps);
    ASSERT_NE(outline, nullptr);
    EXPECT_EQ(outline->size(), (Size{40, 20}));
    EXPECT_EQ(surfaceOutline(style, {40, 20}, bitmaps), outline);
    style.alphaThreshold = 255;
    EXPECT_NE(surfaceOutline(style, {40, 20}, bitmaps), outline);
    EXPECT_EQ(surfaceOutline(style, {40, 20}, {}), nullptr);
}

} // namespace
} // namespace vela
