#include "vela/render/text/text.h"

#include "tests/support/canvas_gdi.h"
#include "tests/support/gdi_objects_gdi.h"
#include "vela/library_win32.h"
#include "vela/render/paint/paint.h"
#include "vela/render/text/fonts.h"
#include "vela/render/text/text_dwrite.h"
#include "vela/resource_folders.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace vela {
namespace {

using testing::Canvas;

constexpr Color kBackground = hexColor(0x102030);
const std::wstring kSentence = L"Příliš žluťoučký kůň úpěl ďábelské ódy, Spouštět s Windows & 42 %";

FontSpec uiFont(std::int32_t points = 10, std::int32_t weight = 400)
{
    return {L"Segoe UI", points, weight, hexColor(0xF0F6F4), hexColor(0x808080)};
}

// A font file whose family exists nowhere else: one of the system's, renamed. It must lie in its folder
// before the first font is made, so it is put there before the first test.
class PrivateFontFolder final : public ::testing::Environment {
public:
    void SetUp() override
    {
        const std::wstring& folder = resourceFolders().fonts;
        ::CreateDirectoryW(folder.c_str(), nullptr);
        std::ifstream source("Z:/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", std::ios::binary);
        std::string font{std::istreambuf_iterator<char>(source), {}};
        for (std::size_t at = 0;
             (at = font.find(std::string("D\0e\0j\0a\0V\0u", 11), at)) != std::string::npos;)
            font.replace(at, 11, std::string("V\0e\0l\0a\0V\0u", 11));
        for (std::size_t at = 0; (at = font.find("DejaVu", at)) != std::string::npos;)
            font.replace(at, 6, "VelaVu");
        const OwnedFile file(::CreateFileW((folder + L"\\VelaVu.TTF").c_str(), GENERIC_WRITE, 0, nullptr,
                                           CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        ::WriteFile(file.get(), font.data(), static_cast<DWORD>(font.size()), &written, nullptr);
    }
};
[[maybe_unused]] const auto* const kPrivateFontFolder =
    ::testing::AddGlobalTestEnvironment(new PrivateFontFolder);

bool hasDirectWrite() { return static_cast<bool>(SystemLibrary(L"dwrite.dll")); }

// In a family with weights of its own, and in one whose heavier and slanted styles are made up.
TEST(TextTest, BothEnginesAndMeasuringAgreeOnWidths)
{
    for (const wchar_t* family : {L"Segoe UI", L"VelaVu Sans"}) {
        for (const std::int32_t dpi : {96, 120, 144, 192}) {
            for (const std::int32_t weight : {300, 400, 600, 700, -400}) {
                FontSpec font{family, 10, std::abs(weight)};
                font.italic = weight < 0;
                const ComPointer<IDWriteTextLayout> layout =
                    makeDirectWriteLayout({kSentence, 1}, ensureFont(font, dpi), 4000, TextAlign::Left);
                const bool isMadeUpBold = family[0] == L'V' && weight > 500; // left to GDI, which widens it
                ASSERT_EQ(static_cast<bool>(layout), hasDirectWrite() && !isMadeUpBold) << weight;
                if (!layout)
                    continue;
                DWRITE_TEXT_METRICS metrics{};
                ASSERT_EQ(layout->GetMetrics(&metrics), S_OK);
                EXPECT_NEAR(metrics.width, measureTextWidth(kSentence, font, dpi), 1.0)
                    << dpi << ' ' << weight;
                EXPECT_EQ(metrics.height, static_cast<float>(lineHeight(font, dpi)));
            }
        }
    }
}

// Letters put next to each other as GDI measures them stand where a layout of DirectWrite puts them.
TEST(TextTest, PlainTextIsLaidOutAsDirectWriteLaysItOut)
{
    if (!hasDirectWrite())
        GTEST_SKIP() << "no DirectWrite";
    const TextLines lines{L"Příliš žluťoučký\nkůň úpěl: 42 % — „ódy“", 2};
    const auto isSame = [](const PositionedGlyph& one, const PositionedGlyph& other) {
        return one.pen == other.pen && one.mask->box == other.mask->box &&
               one.mask->coverage == other.mask->coverage;
    };
    for (const TextAlign align : {TextAlign::Left, TextAlign::Center, TextAlign::Right}) {
        for (const std::int32_t dpi : {96, 144}) {
            for (const bool italic : {false, true}) {
                FontSpec spec = uiFont();
                spec.italic = italic;
                const Font& font = ensureFont(spec, dpi);
                const auto plain = layoutPlainText(lines, font, 401, align, GdiTextMeasurer(font));
                const auto layout = layoutComplexText(lines, font, 401, align);
                ASSERT_TRUE(plain && layout);
                EXPECT_EQ(plain->inkBounds, layout->inkBounds);
                EXPECT_TRUE(std::equal(plain->glyphs.begin(), plain->glyphs.end(), layout->glyphs.begin(),
                                       layout->glyphs.end(), isSame))
                    << dpi << ' ' << italic;
            }
        }
    }
    const Font& font = ensureFont(uiFont(), 96);
    EXPECT_FALSE(layoutPlainText({L"\u0531", 1}, font, 400, TextAlign::Left, GdiTextMeasurer(font)));
}

// drawCenteredText is GDI's, drawText DirectWrite's where there is one.
TEST(TextTest, BothEnginesPutTheSameInkAtTheSamePlace)
{
    for (const std::int32_t dpi : {96, 144}) {
        const Rect rect{7, 5, 601, 43};
        Canvas direct({640, 60}, kBackground);
        Canvas gdi({640, 60}, kBackground);
        const auto background = gdi.pixels();
        const std::wstring text = L"Zástupce na ploše: Hgjy";
        drawText(direct.dc(), rect, text, uiFont(), dpi, {.align = TextAlign::Center});
        drawCenteredText(gdi.dc(), rect, text, uiFont(), dpi);
        const Rect one = direct.changed(background);
        const Rect other = gdi.changed(background);
        ASSERT_GT(one.width, 100);
        EXPECT_NEAR(one.x, other.x, 1);
        EXPECT_NEAR(one.y, other.y, 1);
        EXPECT_NEAR(one.width, other.width, 2);
        EXPECT_NEAR(one.height, other.height, 2);
    }
}

TEST(TextTest, AlignmentAndWrappingPlaceTheInk)
{
    const Rect rect{20, 10, 300, 100};
    const std::int32_t width = measureTextWidth(L"HHH", uiFont(), 96);
    const struct {
        TextLook look;
        std::int32_t left;
        std::int32_t middle; // of the ink's height
    } rows[] = {
        {{.align = TextAlign::Left}, 20, 60},
        {{.align = TextAlign::Center}, 20 + (300 - width) / 2, 60},
        {{.align = TextAlign::Right}, 320 - width, 60},
        {{.wrap = TextWrap::Words}, 20, 10 + lineHeight(uiFont(), 96) / 2},
    };
    for (const auto& row : rows) {
        Canvas canvas({340, 120}, kBackground);
        const auto background = canvas.pixels();
        drawText(canvas.dc(), rect, L"HHH", uiFont(), 96, row.look);
        const Rect ink = canvas.changed(background);
        EXPECT_NEAR(ink.x, row.left, 3);
        EXPECT_NEAR(ink.y + ink.height / 2, row.middle, 3);
    }
}

TEST(TextTest, WhatLiesUnderAndAroundTheTextStays)
{
    Canvas canvas({200, 60});
    const PixelView view = canvas.view();
    for (std::int32_t i = 0; i < 200 * 60; ++i)
        view.pixels[i] = static_cast<Pixel>(i % 256) | static_cast<Pixel>(i / 97 % 256) << 8;
    const auto background = canvas.pixels();
    const Rect rect{10, 20, 90, 20};
    drawText(canvas.dc(), rect, kSentence, uiFont(), 96);
    const Rect ink = canvas.changed(background);
    EXPECT_EQ(intersection(ink, rect), ink);
    EXPECT_GT(ink.width, 70); // the ellipsis stands near the right edge
    const auto now = canvas.pixels();
    std::int32_t untouched = 0;
    for (std::int32_t y = ink.y; y < ink.y + ink.height; ++y)
        for (std::int32_t x = ink.x; x < ink.x + ink.width; ++x)
            untouched += now[static_cast<std::size_t>(y * 200 + x)] ==
                         background[static_cast<std::size_t>(y * 200 + x)];
    EXPECT_GT(untouched, ink.width * ink.height / 3);
}

TEST(TextTest, TheClipIsKeptAndTextOutsideItCostsNothing)
{
    Canvas canvas({200, 60}, kBackground);
    const auto background = canvas.pixels();
    ::IntersectClipRect(canvas.dc(), 50, 0, 80, 60);
    drawText(canvas.dc(), {0, 10, 200, 30}, kSentence, uiFont(), 96);
    const Rect ink = canvas.changed(background);
    EXPECT_GT(ink.width, 15);
    EXPECT_GE(ink.x, 50);
    EXPECT_LE(ink.x + ink.width, 80);

    const TextStatistics before = textStatistics();
    drawText(canvas.dc(), {100, 10, 80, 30}, L"nikdy nevidět", uiFont(17), 96);
    drawText(canvas.dc(), {60, 10, 0, 30}, L"bez místa", uiFont(17), 96);
    drawText(canvas.dc(), {60, 10, 20, 30}, L"", uiFont(17), 96);
    EXPECT_EQ(textStatistics().layouts, before.layouts);
    EXPECT_EQ(textStatistics().fonts, before.fonts);
}

TEST(TextTest, TheStateChoosesTheColour)
{
    for (const TextTone tone : {TextTone::Enabled, TextTone::Disabled}) {
        FontSpec font = uiFont(40, 700);
        font.color = hexColor(0xFF0000);
        font.disabledColor = hexColor(0x0000FF);
        Canvas canvas({100, 80});
        drawText(canvas.dc(), {0, 0, 100, 80}, L"H", font, 96, {.tone = tone});
        Canvas line({100, 80});
        drawUnclippedLine(line.dc(), {0, 0, 1, 1}, L"H", font, 96,
                          tone == TextTone::Enabled ? font.color : font.disabledColor);
        const Pixel wanted = tone == TextTone::Enabled ? 0xFF0000 : 0x0000FF;
        for (const Canvas* drawn : {&canvas, &line}) {
            const auto pixels = drawn->pixels();
            EXPECT_GT(std::count(pixels.begin(), pixels.end(), wanted), 100);
        }
    }
}

TEST(TextTest, MeasuringGivesTheHeightThatDrawTextGives)
{
    const Font& font = ensureFont(uiFont(), 96);
    const std::wstring words = L"Aplikace se nainstaluje do zvolené složky a potom se spustí, pokud to jde.";
    const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
    const SelectedObject selected(dc.get(), font.handle);
    const auto heightAt = [&](std::int32_t width) {
        RECT room{0, 0, width, 0};
        ::DrawTextW(dc.get(), words.c_str(), -1, &room, DT_CALCRECT | DT_WORDBREAK);
        return room.bottom;
    };
    // Wine wants room for the blank behind a line as well.
    const std::int32_t blank = measureTextWidth(L" ", uiFont(), 96);
    for (std::int32_t width = 90; width < 600; width += 3) {
        const std::int32_t height = measureText(words, uiFont(), 96, width);
        EXPECT_TRUE(height == heightAt(width) || height == heightAt(width + blank)) << width;
    }
    // A path has no blanks to break at.
    const std::wstring path = L"C:\\Velmi\\Dlouha\\CestaKteraSeNevejdeNaRadek\\Tamber.exe";
    const std::int32_t lines = (measureTextWidth(path, uiFont(), 96) + 99) / 100;
    EXPECT_GE(measureText(path, uiFont(), 96, 100), lines * font.lineHeight);
    EXPECT_EQ(measureText(L"a\nb\nc", uiFont(), 96, 100), 3 * font.lineHeight);
}

TEST(TextTest, WrappedTextEndsWithItsLastFullLine)
{
    const std::int32_t line = lineHeight(uiFont(), 96);
    Canvas canvas({200, 200}, kBackground);
    const auto background = canvas.pixels();
    drawText(canvas.dc(), {0, 0, 150, 2 * line + line / 2}, kSentence, uiFont(), 96,
             {.wrap = TextWrap::Words});
    const Rect ink = canvas.changed(background);
    EXPECT_GT(ink.height, line);
    EXPECT_LE(ink.y + ink.height, 2 * line);
}

TEST(TextTest, OddTextIsDrawnWhole)
{
    Canvas canvas({400, 60}, kBackground);
    for (const wchar_t* text : {L"e\u0301 z\u030C \xD83D\xDE80 \xD83D\xDC68\u200D\xD83D\xDC69", L"\xD83D",
                                L"\x1F\t", L"&&&", L"%s%n"}) {
        for (std::int32_t width = 1; width < 100; width += 9) {
            drawText(canvas.dc(), {0, 0, width, 50}, text, uiFont(), 96);
            drawText(canvas.dc(), {0, 0, width, 50}, text, uiFont(), 96, {.wrap = TextWrap::Words});
        }
    }
    const auto blank = canvas.pixels();
    drawText(canvas.dc(), {200, 0, 100, 50}, L"&", uiFont(), 96);
    EXPECT_GT(canvas.changed(blank).width, 3); // no access key, an ampersand
}

TEST(TextTest, AFaceThatIsNotThereIsTheDefaultFaceAndAPrivateOneIsItself)
{
    EXPECT_EQ(ensureFont({L"Neexistuje Nikde", 10}, 96).face.family, L"Segoe UI");
    EXPECT_EQ(ensureFont({L"", 10}, 96).face.family, L"Segoe UI");
    EXPECT_EQ(ensureFont({L"VelaVu Sans", 10}, 96).face.family, L"VelaVu Sans");
    const auto faceOf = [](const FontSpec& spec) {
        const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
        const SelectedObject selected(dc.get(), fontFor(spec, 96));
        wchar_t name[LF_FACESIZE] = {};
        ::GetTextFaceW(dc.get(), LF_FACESIZE, name);
        return std::wstring(name);
    };
    EXPECT_EQ(faceOf({L"VelaVu Sans", 10}), L"VelaVu Sans");
    const ComPointer<IDWriteTextLayout> layout =
        makeDirectWriteLayout({L"abc", 1}, ensureFont({L"VelaVu Sans", 10}, 96), 100, TextAlign::Left);
    ASSERT_EQ(static_cast<bool>(layout), hasDirectWrite());
    if (layout) {
        wchar_t name[64] = {};
        layout->GetFontFamilyName(0, name, 64, nullptr);
        EXPECT_STREQ(name, L"VelaVu Sans");
    }
}

TEST(TextTest, TheDpiIsPartOfTheFont)
{
    EXPECT_EQ(ensureFont(uiFont(), 96).em, 13);
    EXPECT_EQ(ensureFont(uiFont(), 192).em, 27);
    EXPECT_NE(fontFor(uiFont(), 96), fontFor(uiFont(), 192));
    FontSpec recoloured = uiFont();
    recoloured.color = 1;
    EXPECT_EQ(fontFor(recoloured, 96), fontFor(uiFont(), 96));
}

TEST(TextTest, RepaintingMakesNoFontNoLayoutAndNoGdiObject)
{
    Canvas canvas({400, 200}, kBackground);
    const auto paint = [&] {
        drawText(canvas.dc(), {0, 0, 200, 30}, kSentence, uiFont(), 96);
        drawText(canvas.dc(), {0, 30, 200, 90}, kSentence, uiFont(11, 600), 144, {.wrap = TextWrap::Words});
        drawCenteredText(canvas.dc(), {0, 130, 200, 30}, kSentence, uiFont(), 96, TextTone::Disabled);
        drawUnclippedLine(canvas.dc(), {0, 160, 200, 30}, kSentence, uiFont(), 96, 0);
    };
    paint();
    paint();
    const TextStatistics once = textStatistics();
    const int objects = testing::gdiObjectCount();
    for (int i = 0; i < 500; ++i)
        paint();
    EXPECT_EQ(textStatistics().fonts, once.fonts);
    EXPECT_EQ(textStatistics().layouts, once.layouts);
    EXPECT_EQ(testing::gdiObjectCount(), objects);
    EXPECT_GT(objects, 0);
}

// Texts that come and go must not pile up.
TEST(TextTest, ManyDifferentTextsLeaveNoObjectsBehind)
{
    Canvas canvas({200, 40}, kBackground);
    const auto paint = [&](int i) {
        drawText(canvas.dc(), {0, 0, 200, 30}, std::to_wstring(i), uiFont(), 96);
    };
    for (int i = 0; i < 600; ++i)
        paint(i);
    const int objects = testing::gdiObjectCount();
    for (int i = 600; i < 1200; ++i)
        paint(i);
    EXPECT_EQ(testing::gdiObjectCount(), objects);
}

} // namespace
} // namespace vela
