#include "vela/render/bitmaps/bitmap_tint.h"

#include "tests/render/layers/layer_testing.h"

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

} // namespace
} // namespace vela
