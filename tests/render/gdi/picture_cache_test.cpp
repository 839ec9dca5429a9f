#include "vela/render/gdi/picture_cache.h"

#include <gtest/gtest.h>
#include <vector>

namespace vela {
namespace {

// Pixels that somebody painted over a ground.
struct Painted {
    explicit Painted(Size given, Pixel value = 0x102030)
        : size(given), pixels(static_cast<std::size_t>(size.width * size.height), value)
    {
    }
    PixelView view() { return {pixels.data(), size, size.width}; }

    Size size;
    std::vector<Pixel> pixels;
};

TEST(PictureCacheTest, BackdropsAreToldApartByEveryColourAndTheSize)
{
    const Size size{13, 3}; // no multiple of what is read at once
    Painted ground(size);
    const Backdrop backdrop = backdropOf(ground.view());
    for (Pixel& pixel : ground.pixels) {
        for (const Pixel bit : {0x000001u, 0x000100u, 0x800000u}) {
            pixel ^= bit;
            EXPECT_FALSE(backdropOf(ground.view()) == backdrop);
            pixel ^= bit;
        }
        pixel |= 0xFF000000; // GDI leaves anything there
        EXPECT_TRUE(backdropOf(ground.view()) == backdrop);
    }
    // What lies beside the view is none of its business.
    Painted wide({20, 3});
    EXPECT_TRUE(backdropOf({wide.pixels.data(), size, 20}) == backdrop);
    EXPECT_FALSE(backdropOf(Painted({3, 13}).view()) == backdrop);
    std::swap(ground.pixels.front() = 1, ground.pixels[8]);
    EXPECT_FALSE(backdropOf(ground.view()) == backdropOf(Painted(size).view()));
}

TEST(PictureCacheTest, APictureComesBackForTheSameThingOnTheSameBackdrop)
{
    PictureCache<int> pictures(1000);
    const Size size{10, 5};
    const Backdrop backdrop = backdropOf(Painted(size).view());
    EXPECT_FALSE(pictures.find(7, backdrop).pixels);
    EXPECT_FALSE(pictures.noteAndIsRepeated(backdrop));
    EXPECT_TRUE(pictures.noteAndIsRepeated(backdrop));
    Painted result(size, 0xABCDEF);
    pictures.store(7, backdrop, result.view());
    const PixelView cached = pictures.find(7, backdrop);
    ASSERT_TRUE(cached.pixels);
    EXPECT_EQ(std::vector<Pixel>(cached.pixels, cached.pixels + 50), result.pixels);
    EXPECT_FALSE(pictures.find(8, backdrop).pixels);
    EXPECT_FALSE(pictures.find(7, backdropOf(Painted(size, 1).view())).pixels);
}

TEST(PictureCacheTest, RoomIsBounded)
{
    PictureCache<int> pictures(100);
    EXPECT_TRUE(pictures.hasRoomFor({10, 10}));
    EXPECT_FALSE(pictures.hasRoomFor({101, 1}));
    EXPECT_FALSE(pictures.hasRoomFor({0, 5}));
    Painted result({5, 8});
    const Backdrop backdrop = backdropOf(result.view());
    for (int what = 0; what < 50; ++what) {
        pictures.store(what, backdrop, result.view());
        EXPECT_TRUE(pictures.find(0, backdrop).pixels) << "asked for all the time";
        EXPECT_LE(pictures.size(), 2u);
    }
}

} // namespace
} // namespace vela
