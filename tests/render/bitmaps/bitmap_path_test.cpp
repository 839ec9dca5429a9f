#include "vela/render/bitmaps/bitmap_path.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(BitmapPath, LeadsIntoTheSkinsFolderOrNowhere)
{
    for (const wchar_t* path : {L"plate.png", L"plates/button hot.png", L"a\\b\\c.jpg", L"..plate.png",
                                L"con1.png", L"console.png", L"com.png", L"\u017Elut\u00FD.png", L".hidden"})
        EXPECT_TRUE(isSafeBitmapPath(path)) << path;
    for (const wchar_t* path : {L"",
                                L"/plate.png",
                                L"\\plate.png",
                                L"\\\\server\\share\\a.png",
                                L"//server/a.png",
                                L"C:\\a.png",
                                L"C:a.png",
                                L"\\\\?\\C:\\a.png",
                                L"\\\\.\\nul",
                                L"..",
                                L"../a.png",
                                L"a/../../b.png",
                                L"a\\..\\b.png",
                                L"a/. ./b.png",
                                L".. /a.png",
                                L"a/..  ",
                                L"./a.png",
                                L"a//b.png",
                                L"a/",
                                L"a.png:stream",
                                L"a.png.",
                                L"a.png ",
                                L"a\nb.png",
                                L"what?.png",
                                L"*.png",
                                L"nul",
                                L"NUL.png",
                                L"sub/Com1.png",
                                L"lpt9",
                                L"aux .png",
                                L"com\u00B2.png",
                                L"CONIN$",
                                L"http://x/a.png"})
        EXPECT_FALSE(isSafeBitmapPath(path)) << path;
    EXPECT_FALSE(isSafeBitmapPath(std::wstring(300, L'a')));
    EXPECT_FALSE(isSafeBitmapPath(std::wstring_view(L"a\0b.png", 7)));

    EXPECT_EQ(bitmapFile(L"C:\\skins", L"plates/hot.png"), L"C:\\skins\\plates\\hot.png");
    EXPECT_EQ(bitmapFile(L"C:\\skins", L"../hot.png"), L"");
    EXPECT_EQ(bitmapFile(L"", L"hot.png"), L"");
}

} // namespace
} // namespace vela
