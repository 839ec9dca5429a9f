#include "vela/render/text/font_choice.h"

#include <gtest/gtest.h>
#include <set>

namespace vela {
namespace {

TEST(FontChoiceTest, SizesArePointsAtTheWindowsDpi)
{
    const struct {
        std::int32_t points;
        std::int32_t dpi;
        std::int32_t pixels;
    } rows[] = {{10, 96, 13},  {9, 96, 12}, {10, 144, 20}, {11, 120, 18},
                {12, 192, 32}, {0, 96, 1},  {-5, 96, 1}};
    for (const auto& row : rows)
        EXPECT_EQ(emPixels(row.points, row.dpi), row.pixels) << row.points << " pt at " << row.dpi;
}

TEST(FontChoiceTest, AFaceThatIsNotThereBecomesTheDefaultFace)
{
    const std::set<std::wstring> installed = {L"Segoe UI", L"Segoe UI Semibold", L"Georgia",
                                              L"Exo 2",    L"Exo 2 Light",       L"Exo 2 Medium"};
    const auto isInstalled = [&](const std::wstring& family) { return installed.count(family) != 0; };
    const struct {
        const wchar_t* family;
        std::int32_t weight;
        const wchar_t* face;
        std::int32_t asked; // of GDI
    } rows[] = {
        {L"Georgia", 400, L"Georgia", 400},
        {L"Georgia", 600, L"Georgia", 600},
        {L"Exo 2", 500, L"Exo 2 Medium", 400},
        {L"Exo 2", 300, L"Exo 2 Light", 300},
        {L"Bahnschrift", 400, L"Segoe UI", 400},
        {L"Bahnschrift", 600, L"Segoe UI Semibold", 400},
        {L"", 400, L"Segoe UI", 400},
        {L"Segoe UI", 700, L"Segoe UI", 700},
    };
    for (const auto& row : rows) {
        const FontFace face = chooseFace(row.family, row.weight, isInstalled);
        EXPECT_EQ(face.family, row.face);
        EXPECT_EQ(face.weight, row.asked);
    }
    EXPECT_EQ(chooseFace(L"Georgia", 400, [](const std::wstring&) { return false; }).family, L"Segoe UI");
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
