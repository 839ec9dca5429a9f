#include "vela/render/text/text.h"

#include "tests/support/canvas_gdi.h"
#include "tests/support/gdi_objects_gdi.h"
#include "vela/library_win32.h"
#include "vela/render/paint/paint.h"
#include "vela/render/text/fonts.h"
#include "vela/render/text/layout_dwrite.h"
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
                    makeDirectWriteLayout({kSentence, 1}, ensureFont(font, dpi), {4000, 100},
                                          TextWrap::SingleLine, TextAlign::Left);
                ASSERT_EQ(static_cast<bool>(layout), hasDirectWrite()) << weight;
                if (!layout)
                    continue;
                DWRITE_TEXT_METRICS metrics{};
                ASSERT_EQ(layout->GetMetrics(&metrics), S_OK);
                const bool isMadeUpBold = family[0] == L'V' && weight > 500; // GDI widens each letter
                const auto measured = static_cast<float>(measureTextWidth(kSentence, font, dpi));
                EXPECT_LE(metrics.width, measured + 1) << dpi << ' ' << weight;
                EXPECT_GE(metrics.width, isMadeUpBold ? measured * 0.8F : measured - 1)
                    << dpi << ' ' << weight;
                EXPECT_EQ(metrics.height, static_cast<float>(lineHeight(font, dpi)));
            }
        }
    }
}

// Where a layout places letters that only have to be put next to each other, GDI measures them.
TEST(TextTest, LettersStandWhereTheyAreMeasured)
{
    const std::wstring text = L"Příliš žluťoučký kůň úpěl: 42 % — „ódy“";
    for (const std::int32_t dpi : {96, 120, 144}) {
        for (const bool italic : {false, true}) {
            FontSpec font = uiFont();
            font.italic = italic;
            const TextPlaces places = measureTextPlaces(text, font, dpi);
            for (std::size_t i = 0; i <= text.size(); ++i)
                EXPECT_EQ(places.caretX(i), measureTextWidth(text.substr(0, i), font, dpi))
                    << i << ' ' << dpi;
        }
    }
}

// The first letter of a line to the left stands at its right end, as it would stand alone.
TEST(TextTest, PlacesAreThoseOfTheDrawnLetters)
{
    if (!hasDirectWrite())
        GTEST_SKIP() << "GDI tells no places but from left to right";
    const FontSpec font{L"VelaVu Sans", 14, 400, hexColor(0xF0F6F4), 0};
    const std::wstring text = L"ab \u05E9\u05DC\u05D5\u05DD";
    const TextPlaces places = measureTextPlaces(text, font, 96);
    EXPECT_LT(places.caretX(2), places.caretX(7));
    EXPECT_GT(places.caretX(3), places.caretX(4));
    EXPECT_EQ(places.caretX(3), places.width());
    EXPECT_EQ(places.spans(1, 5).size(), 2u);
    Canvas line({200, 40}, kBackground);
    drawUnclippedLine(line.dc(), {10, 5, 1, 1}, text, font, 96, font.color);
    for (std::size_t i = 3; i < text.size(); ++i) {
        const TextSpan span = places.spans(i, i + 1).at(0);
        Canvas letter({200, 40}, kBackground);
        drawUnclippedLine(letter.dc(), {10 + span.left, 5, 1, 1}, text.substr(i, 1), font, 96, font.color);
        for (std::int32_t y = 0; y < 40; ++y)
            for (std::int32_t x = 10 + span.left + 1; x < 10 + span.right - 1; ++x)
                ASSERT_EQ(line.at(x, y), letter.at(x, y)) << i << ": " << x << ' ' << y;
        EXPECT_EQ(places.indexAt(span.left + 1), i + 1);
        EXPECT_EQ(places.indexAt(span.right - 1), i);
    }
    // Joined letters and marks: every place is a caret's, and the whole line is covered.
    for (const wchar_t* mixed :
         {L"C:\\\u0645\u0644\u0641\u0627\u062A\\x", L"e\u0301 \u4E2D\u6587 \xD83D\xDE80 Ž"}) {
        const std::wstring odd = mixed;
        const TextPlaces places_ = measureTextPlaces(odd, font, 96);
        EXPECT_EQ(places_.spans(0, odd.size()), (std::vector<TextSpan>{{0, places_.width()}}));
    }
}

// drawCenteredText is GDI's, drawText DirectWrite's where there is one.
TEST(TextTest, BothEnginesPutTheSameInkAtTheSamePlace)
{
    for (const std::int32_t dpi : {96, 144}) {
        for (const std::int32_t height : {43, 29, 11}) {
            const Rect rect{7, 5, 601, height};
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

// Whatever part of a text is painted, it is that part of the whole.
TEST(TextTest, DrawnInPartsItIsTheSame)
{
    FontSpec slanted = uiFont(14);
    slanted.italic = slanted.underline = true;
    const auto paint = [&slanted](const Canvas& canvas) {
        drawText(canvas.dc(), {3, 2, 290, 25}, kSentence, uiFont(), 96, {.align = TextAlign::Center});
        drawText(canvas.dc(), {3, 30, 150, 90}, kSentence, slanted, 96, {.wrap = TextWrap::Words});
        drawText(canvas.dc(), {160, 30, 130, 9}, kSentence, uiFont(20), 96, {.align = TextAlign::Right});
        drawUnclippedLine(canvas.dc(), {-150, 100, 1, 1}, kSentence + L" \u05E9\u05DC\u05D5\u05DD fi",
                          {L"VelaVu Sans", 12, 400}, 96, hexColor(0xFFC040));
    };
    const auto scene = [](const Canvas& canvas) {
        const PixelView view = canvas.view();
        for (std::int32_t i = 0; i < 300 * 130; ++i)
            view.pixels[i] = static_cast<Pixel>(i % 251) | static_cast<Pixel>(i / 97 % 256) << 8;
    };
    Canvas whole({300, 130});
    scene(whole);
    paint(whole);
    std::uint32_t seed = 3;
    const auto upTo = [&seed](std::uint32_t most) {
        seed = seed * 1664525 + 1013904223;
        return static_cast<int>((seed >> 8) % (most + 1));
    };
    for (int round = 0; round < 40; ++round) {
        Canvas parts({300, 130});
        scene(parts);
        const auto background = parts.pixels();
        const Rect one{upTo(250), upTo(100), 1 + upTo(80), 1 + upTo(60)};
        const Rect other{upTo(250), upTo(100), 1 + upTo(20), 1 + upTo(60)};
        {
            const PaintClip clip(parts.dc(), {one, other});
            paint(parts);
        }
        const auto now = parts.pixels();
        const auto wanted = whole.pixels();
        for (std::int32_t i = 0; i < 300 * 130; ++i) {
            const Rect pixel{i % 300, i / 300, 1, 1};
            const bool inside = !isEmpty(intersection(one, pixel)) || !isEmpty(intersection(other, pixel));
            const auto at = static_cast<std::size_t>(i);
            ASSERT_EQ(now[at], inside ? wanted[at] : background[at])
                << round << ": " << pixel.x << ' ' << pixel.y;
        }
    }
}

// Sets what the user has chosen for all programs, and puts it back.
class SmoothingChoice {
public:
    SmoothingChoice()
    {
        ::SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &isOn_, 0);
        ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &type_, 0);
    }
    ~SmoothingChoice()
    {
        choose(isOn_, type_);
        textSettingsChanged();
    }
    static void choose(BOOL isOn, UINT type)
    {
        ::SystemParametersInfoW(SPI_SETFONTSMOOTHING, static_cast<UINT>(isOn), nullptr, 0);
        ::SystemParametersInfoW(SPI_SETFONTSMOOTHINGTYPE, 0, reinterpret_cast<void*>(std::uintptr_t{type}),
                                0);
    }

private:
    BOOL isOn_ = TRUE;
    UINT type_ = FE_FONTSMOOTHINGCLEARTYPE;
};

TEST(TextTest, LettersAreSmoothedAsTheUserHasChosen)
{
    if (!hasDirectWrite())
        GTEST_SKIP() << "GDI's fonts ask for ClearType";
    const SmoothingChoice before;
    // How many pixels are neither ground nor letter, and how many are coloured.
    const auto edges = [] {
        Canvas canvas({200, 40});
        drawText(canvas.dc(), {0, 0, 200, 40}, L"Spouštět", {L"Segoe UI", 14, 400, hexColor(0xFFFFFF)}, 96);
        std::pair<int, int> found;
        for (const Pixel pixel : canvas.pixels()) {
            found.first += pixel != 0 && pixel != 0xFFFFFF;
            found.second += (pixel >> 16) != (pixel & 0xFF);
        }
        return found;
    };
    before.choose(TRUE, FE_FONTSMOOTHINGSTANDARD);
    textSettingsChanged();
    const auto grey = edges();
    EXPECT_GT(grey.first, 50);
    EXPECT_EQ(grey.second, 0);
    before.choose(FALSE, FE_FONTSMOOTHINGSTANDARD);
    EXPECT_EQ(edges(), grey) << "asked for anew with every text";
    textSettingsChanged();
    EXPECT_EQ(edges().first, 0);
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
    EXPECT_EQ(ensureFont({L"Neexistuje Nikde", 10}, 96).face.family,
              ensureFont({L"Segoe UI", 10}, 96).face.family);
    EXPECT_EQ(ensureFont({L"", 10}, 96).face.family, ensureFont({L"Segoe UI", 10}, 96).face.family);
    EXPECT_EQ(ensureFont({L"VelaVu Sans", 10}, 96).face.family, L"VelaVu Sans");
    const auto faceOf = [](const FontSpec& spec) {
        const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
        const SelectedObject selected(dc.get(), fontFor(spec, 96));
        wchar_t name[LF_FACESIZE] = {};
        ::GetTextFaceW(dc.get(), LF_FACESIZE, name);
        return std::wstring(name);
    };
    EXPECT_EQ(faceOf({L"VelaVu Sans", 10}), L"VelaVu Sans");
    const ComPointer<IDWriteTextLayout> layout = makeDirectWriteLayout(
        {L"abc", 1}, ensureFont({L"VelaVu Sans", 10}, 96), {100, 20}, TextWrap::SingleLine, TextAlign::Left);
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

// GDI takes 8,192 units at a time, a layout no more than the longest path has.
TEST(TextTest, LongTextsAreMeasuredAndDrawnToTheirEnd)
{
    const std::int32_t wide = measureTextWidth(L"m", uiFont(), 96);
    for (const std::size_t length : {8191u, 8193u, 20'000u, 40'000u}) {
        const std::wstring text(length, L'm');
        EXPECT_EQ(measureTextWidth(text, uiFont(), 96), static_cast<std::int32_t>(length) * wide);
        const TextPlaces places = measureTextPlaces(text, uiFont(), 96);
        EXPECT_EQ(places.caretX(length), static_cast<std::int32_t>(length) * wide);
        Canvas canvas({100, 40}, kBackground);
        const auto background = canvas.pixels();
        drawUnclippedLine(canvas.dc(), {60 - places.width(), 5, 1, 1}, text, uiFont(), 96, 0xFFFFFF);
        const Rect ink = canvas.changed(background);
        EXPECT_LE(ink.x, 1);
        EXPECT_NEAR(ink.x + ink.width, 60, 2);
    }
    EXPECT_LE(measureTextWidth(std::wstring(1'000'000, L'm'), uiFont(400), 9600), kWidestText);
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
    EXPECT_LE(textStatistics().kept, 256u);
    const int objects = testing::gdiObjectCount();
    for (int i = 600; i < 1200; ++i)
        paint(i);
    EXPECT_EQ(testing::gdiObjectCount(), objects);
    for (int i = 0; i < 20; ++i)
        drawText(canvas.dc(), {0, 0, 200, 30}, std::wstring(30'000, L'x') + std::to_wstring(i), uiFont(), 96);
    EXPECT_LE(textStatistics().kept, 3u); // long ones leave no room for others
}

} // namespace
} // namespace vela
