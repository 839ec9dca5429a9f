// Bitmap skins from the file to the device context.
#include "tests/support/canvas_gdi.h"
#include "tools/png_file_win32.h"
#include "vela/render/bitmaps/image_decoder_win32.h"
#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/paint/paint.h"
#include "vela/render/surface/surface_painter.h"
#include "vela/render/surface/surface_shape.h"

#include <gtest/gtest.h>

#include <objbase.h>

namespace vela {
namespace {

using testing::Canvas;

constexpr Color kBackground = hexColor(0x304050);

class BitmapSkinTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        ::CreateDirectoryW(folder_.c_str(), nullptr);
        setBitmapFolder(folder_);
    }
    void TearDown() override
    {
        setBitmapFolder({});
        ::CoUninitialize();
    }

    std::wstring file(const std::wstring& name) const { return folder_ + L"\\" + name; }

    void writeFile(const std::wstring& name, std::string_view bytes) const
    {
        const OwnedFile out(
            ::CreateFileW(file(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        ::WriteFile(out.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        ASSERT_EQ(written, bytes.size());
    }

    // A bitmap file of 32 bits a pixel whose header may promise another size than there is.
    static std::string bmp(std::int32_t width, std::int32_t height, std::size_t pixels)
    {
        BITMAPFILEHEADER head{};
        head.bfType = 0x4D42;
        head.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
        head.bfSize = static_cast<DWORD>(head.bfOffBits + pixels * 4);
        const BITMAPINFOHEADER info{sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
        bytes.append(reinterpret_cast<const char*>(&info), sizeof info);
        return bytes.append(pixels * 4, '\x7F');
    }

    const std::wstring folder_ = std::wstring(L"" TAMBER_BINARY_DIR) + L"\\bitmaps";
};

TEST_F(BitmapSkinTest, DecodesWhatWasWritten)
{
    Pixel pixels[] = {0xFF0000, 0x00FF00, 0x0000FF, 0x123456, 0xFFFFFF, 0x000000};
    ASSERT_TRUE(tools::writePng(file(L"six.png"), {pixels, {3, 2}, 3}));
    const BitmapImage image = decodeImage(file(L"six.png"));
    ASSERT_EQ(image.size, (Size{3, 2}));
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(image.pixels[i], pixels[i] | 0xFF000000) << i;
}

// Decoded a few rows at a time, the last of them fewer.
TEST_F(BitmapSkinTest, ALargePictureIsTheSameFromTopToBottom)
{
    std::vector<Pixel> pixels(700 * 801);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<Pixel>(i * 2654435761U) & 0xFFFFFF;
    ASSERT_TRUE(tools::writePng(file(L"large.png"), {pixels.data(), {700, 801}, 700}));
    const BitmapImage image = decodeImage(file(L"large.png"));
    ASSERT_EQ(image.size, (Size{700, 801}));
    for (std::size_t i = 0; i < pixels.size(); ++i)
        ASSERT_EQ(image.pixels[i], pixels[i] | 0xFF000000) << i;
}

TEST_F(BitmapSkinTest, MissingDamagedAndEnormousPicturesAreNone)
{
    Pixel pixels[64] = {};
    ASSERT_TRUE(tools::writePng(file(L"good.png"), {pixels, {8, 8}, 8}));
    writeFile(L"empty.png", "");
    writeFile(L"text.png", "This is no picture.");
    writeFile(L"cut.png", "\x89PNG\r\n\x1A\n");
    writeFile(L"small.bmp", bmp(2, 2, 4));
    writeFile(L"huge.bmp", bmp(8001, 8000, 4));
    ::CreateDirectoryW(file(L"folder.png").c_str(), nullptr);
    EXPECT_EQ(decodeImage(file(L"small.bmp")).size, (Size{2, 2}));
    for (const wchar_t* name :
         {L"none.png", L"empty.png", L"text.png", L"cut.png", L"huge.bmp", L"folder.png"})
        EXPECT_TRUE(decodeImage(file(name)).pixels.empty()) << name;
}

TEST_F(BitmapSkinTest, TheBitmapIsThePlateAndWithoutItTheSurfaceIsPaintedPlain)
{
    std::vector<Pixel> pixels(30 * 20, 0x40C080);
    ASSERT_TRUE(tools::writePng(file(L"plate.png"), {pixels.data(), {30, 20}, 30}));
    SurfaceStyle style;
    style.shape = ShapeKind::Rect;
    style.fill = hexColor(0x112233);
    style.drawBorder = false;
    style.materialDepth = 0;
    style.image.ensure().path = L"plate.png";
    Canvas canvas({60, 40}, kBackground);
    paintSurface(canvas.dc(), {10, 5, 40, 30}, style);
    EXPECT_EQ(canvas.at(10, 5), 0x40C080u);
    EXPECT_EQ(canvas.at(49, 34), 0x40C080u);
    EXPECT_EQ(canvas.at(50, 20), 0x304050u);

    // Where it leaves room around itself, the fill is seen.
    style.geometry.ensure().paintInsets = {6, 6, 6, 6};
    for (auto* const paint : {paintSurface, paintControlSurface}) {
        canvas.clear(kBackground);
        paint(canvas.dc(), {10, 5, 40, 30}, style);
        EXPECT_EQ(canvas.at(12, 20), 0x112233u);
        EXPECT_EQ(canvas.at(30, 20), 0x40C080u);
    }

    for (const wchar_t* path : {L"missing.png", L"..\\bitmaps\\plate.png", L"Z:\\plate.png"}) {
        style.image.ensure().path = path;
        canvas.clear(kBackground);
        paintSurface(canvas.dc(), {10, 5, 40, 30}, style);
        EXPECT_EQ(canvas.at(30, 20), 0x112233u);
    }
}

// A mask whose left half is light: layers and window region end in its middle.
TEST_F(BitmapSkinTest, AMaskShapesLayersAndWindow)
{
    std::vector<Pixel> pixels(20 * 10);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = i % 20 < 10 ? 0xFFFFFF : 0;
    ASSERT_TRUE(tools::writePng(file(L"mask.png"), {pixels.data(), {20, 10}, 20}));
    SurfaceStyle style;
    style.gradientStart = style.gradientEnd = hexColor(0xFF0000);
    style.alphaThreshold = 128;
    style.geometry.ensure().mode = AlphaHitMode::MaskLayout;
    style.geometry.ensure().maskPath = L"mask.png";
    Canvas canvas({60, 40}, kBackground);
    drawGradientShape(canvas.dc(), {10, 5, 40, 30}, style);
    EXPECT_EQ(canvas.at(10, 5), 0xFF0000u); // a corner that the round shape would leave out
    EXPECT_EQ(canvas.at(28, 20), 0xFF0000u);
    EXPECT_EQ(canvas.at(32, 20), 0x304050u);

    const OwnedRegion region(createShapeRegion(style, {40, 30}));
    RECT box;
    ASSERT_EQ(::GetRgnBox(region.get(), &box), SIMPLEREGION);
    EXPECT_EQ(box.left, 0);
    EXPECT_EQ(box.right, 20);
    EXPECT_EQ(box.bottom, 30);

    pixels.assign(pixels.size(), 0);
    ASSERT_TRUE(tools::writePng(file(L"dark.png"), {pixels.data(), {20, 10}, 20}));
    style.geometry.ensure().maskPath = L"dark.png";
    const OwnedRegion nothing(createShapeRegion(style, {40, 30}));
    ASSERT_TRUE(nothing);
    EXPECT_EQ(::GetRgnBox(nothing.get(), &box), NULLREGION);
}

} // namespace
} // namespace vela
