#include "vela/render/text/font_choice.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(FontChoiceTest, SizesArePointsAtTheWindowsDpi)
{
    const struct {
        std::int32_t points;
        std::int32_t dpi;
        std::int32_t pixels;
    } rows[] = {{10, 96, 13}, {9, 96, 12}, {10, 144, 20}, {11, 120, 18}, {12, 192, 32},
                {0, 96, 1},   {-5, 96, 1}, {10, 3, 1},    {10, 0, 1}};
    for (const auto& row : rows)
        EXPECT_EQ(emPixels(row.points, row.dpi), row.pixels) << row.points << " pt at " << row.dpi;
}

TEST(FontChoiceTest, AFaceThatIsNotThereBecomesTheDefaultFace)
{
    const auto find = [](const std::wstring& family) -> std::optional<FontFace> {
        if (family == L"Georgia")
            return FontFace{L"Georgia", 700};
        if (family == L"Segoe UI")
            return FontFace{L"Segoe UI Semibold", 400};
        return std::nullopt;
    };
    const auto nothing = [](const std::wstring&) { return std::optional<FontFace>(); };
    EXPECT_EQ(chooseFace(L"Georgia", find).family, L"Georgia");
    EXPECT_EQ(chooseFace(L"Georgia", find).weight, 700);
    EXPECT_EQ(chooseFace(L"Bahnschrift", find).family, L"Segoe UI Semibold");
    EXPECT_EQ(chooseFace(L"", find).family, L"Segoe UI Semibold");
    EXPECT_EQ(chooseFace(L"Georgia", nothing).family, L"Segoe UI");
}

TEST(FontChoiceTest, AFontsKeyIsEverythingButItsColours)
{
    const FontSpec font{L"Georgia", 10, 400, 1, 2};
    const FontKey key(font, 96);
    FontSpec other = font;
    other.color = 77;
    EXPECT_TRUE(key.matches(other, 96));
    EXPECT_FALSE(key.matches(font, 144));
    for (const auto change : {+[](FontSpec& f) { f.family += L" "; }, +[](FontSpec& f) { ++f.pointSize; },
                              +[](FontSpec& f) { ++f.weight; }, +[](FontSpec& f) { f.italic = true; },
                              +[](FontSpec& f) { f.underline = true; }}) {
        other = font;
        change(other);
        EXPECT_FALSE(key.matches(other, 96));
    }
}

TEST(FontChoiceTest, RecognisesFontFilesByTheirEnding)
{
    for (const wchar_t* name : {L"a.ttf", L"a.OTF", L"B.TtC", L"x.y.otc"})
        EXPECT_TRUE(isFontFileName(name));
    for (const wchar_t* name : {L"a.fon", L".ttf", L"ttf", L"a.ttf.txt", L""})
        EXPECT_FALSE(isFontFileName(name));
}

} // namespace
} // namespace vela
