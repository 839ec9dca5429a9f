#include "vela/render/text/text_places.h"

#include "vela/render/text/text_lines.h"
#include "vela/text_clusters.h"

#include <gtest/gtest.h>
#include <random>

namespace vela {
namespace {

using Spans = std::vector<TextSpan>;

std::vector<std::int32_t> carets(const TextPlaces& places, std::size_t length)
{
    std::vector<std::int32_t> all;
    for (std::size_t i = 0; i <= length; ++i)
        all.push_back(places.caretX(i));
    return all;
}

std::vector<std::size_t> clicks(const TextPlaces& places, const std::vector<std::int32_t>& xs)
{
    std::vector<std::size_t> all;
    for (const std::int32_t x : xs)
        all.push_back(places.indexAt(x));
    return all;
}

TEST(TextPlacesTest, LettersFromLeftToRight)
{
    const std::vector<std::int32_t> ends{10, 14, 30};
    const GlyphRunPlaces run{0, 0, false, {0, 1, 2}, {10, 4, 16}};
    for (const TextPlaces& places : {TextPlaces(L"abc", ends), TextPlaces(L"abc", {run})}) {
        EXPECT_EQ(carets(places, 4), (std::vector<std::int32_t>{0, 10, 14, 30, 30}));
        EXPECT_EQ(clicks(places, {-9, 0, 4, 5, 11, 12, 21, 22, 99}),
                  (std::vector<std::size_t>{0, 0, 0, 1, 1, 2, 2, 3, 3}));
        EXPECT_EQ(places.spans(1, 3), (Spans{{10, 30}}));
        EXPECT_EQ(places.spans(2, 2), Spans{});
        EXPECT_EQ(places.width(), 30);
    }
    EXPECT_EQ(TextPlaces().caretX(3), 0);
    EXPECT_EQ(TextPlaces().indexAt(3), 0u);
    EXPECT_EQ(TextPlaces().width(), 0);
}

TEST(TextPlacesTest, LettersFromRightToLeft)
{
    const TextPlaces places(L"\u05D0\u05D1\u05D2", {{0, 30, true, {0, 1, 2}, {10, 4, 16}}});
    EXPECT_EQ(carets(places, 3), (std::vector<std::int32_t>{30, 20, 16, 0}));
    EXPECT_EQ(clicks(places, {-5, 3, 12, 17, 19, 24, 27, 99}),
              (std::vector<std::size_t>{3, 3, 2, 2, 1, 1, 0, 0}));
    EXPECT_EQ(places.spans(0, 1), (Spans{{20, 30}}));
    EXPECT_EQ(places.spans(1, 3), (Spans{{0, 20}}));
}

// Shown as "ab", the two letters in reverse, "c".
TEST(TextPlacesTest, ASelectionAcrossDirectionsHasSeveralParts)
{
    const TextPlaces places(
        L"ab\u05D0\u05D1c",
        {{0, 0, false, {0, 1}, {10, 10}}, {2, 40, true, {0, 1}, {10, 10}}, {4, 40, false, {0}, {10}}});
    EXPECT_EQ(carets(places, 5), (std::vector<std::int32_t>{0, 10, 40, 30, 40, 50}));
    EXPECT_EQ(places.spans(1, 3), (Spans{{10, 20}, {30, 40}}));
    EXPECT_EQ(places.spans(3, 5), (Spans{{20, 30}, {40, 50}}));
    EXPECT_EQ(places.spans(0, 5), (Spans{{0, 50}}));
    EXPECT_EQ(clicks(places, {17, 22, 28, 32, 38, 42}), (std::vector<std::size_t>{2, 4, 3, 3, 2, 4}));
}

TEST(TextPlacesTest, ClustersAreOnePlace)
{
    const struct {
        const wchar_t* text;
        GlyphRunPlaces run;
        std::vector<std::int32_t> carets;
    } rows[] = {
        // A mark in its letter's cluster, and in one of its own.
        {L"e\u0301x", {0, 0, false, {0, 0, 2}, {10, 0, 10}}, {0, 0, 10, 20}},
        {L"e\u0301x", {0, 0, false, {0, 1, 2}, {10, 0, 10}}, {0, 0, 10, 20}},
        // Two halves of a character; three of them, joined.
        {L"\xD83D\xDE80x", {0, 0, false, {0, 0, 1}, {18, 10}}, {0, 0, 18, 28}},
        {L"\xD83D\xDC68\u200D\xD83D\xDC69x",
         {0, 0, false, {0, 0, 1, 2, 2, 3}, {18, 0, 18, 10}},
         {0, 0, 0, 0, 0, 36, 46}},
        // One glyph for two letters, from right to left.
        {L"\u0644\u0627", {0, 12, true, {0, 0}, {12}}, {12, 6, 0}},
        // Letters that were shaped together, but have a glyph each.
        {L"fix", {0, 0, false, {0, 0, 2}, {5, 4, 10}}, {0, 5, 9, 19}},
        {L"\u4E2D\u6587", {0, 0, false, {0, 1}, {13, 13}}, {0, 13, 26}},
    };
    for (const auto& row : rows) {
        const std::wstring text = row.text;
        const TextPlaces places(text, {row.run});
        EXPECT_EQ(carets(places, text.size()), row.carets);
        for (std::int32_t x = -1; x < 50; ++x) {
            const std::size_t index = places.indexAt(x);
            EXPECT_EQ(nearestCaretStop(text, index), index) << x;
        }
    }
}

// A text engine's answer is believed, but not relied on.
TEST(TextPlacesTest, AnyRunsGivePlacesInAnyText)
{
    std::mt19937 random(7);
    const auto upTo = [&random](std::uint32_t most) { return random() % (most + 1); };
    for (int round = 0; round < 3000; ++round) {
        constexpr wchar_t kUnits[] = L"ab\u0301\u05D0\u0644\u200D\xD83D\xDE80 ";
        std::wstring text(upTo(12), L' ');
        for (wchar_t& unit : text)
            unit = kUnits[upTo(8)];
        std::vector<GlyphRunPlaces> runs(upTo(4));
        for (GlyphRunPlaces& run : runs) {
            run.begin = upTo(15);
            run.x = static_cast<float>(upTo(100)) * (upTo(20) == 0 ? 1e30F : 1);
            run.runsLeft = upTo(1) != 0;
            run.clusters.resize(upTo(6));
            for (std::uint16_t& cluster : run.clusters)
                cluster = static_cast<std::uint16_t>(upTo(7));
            run.advances.assign(upTo(6), static_cast<float>(upTo(20)));
        }
        const TextPlaces places(text, runs);
        EXPECT_LE(places.width(), kWidestText);
        for (std::int32_t x = -200; x < 200; x += 7) {
            const std::size_t index = places.indexAt(x);
            EXPECT_EQ(nearestCaretStop(text, index), index);
        }
        std::int32_t before = INT32_MIN;
        for (const TextSpan& span : places.spans(upTo(12), upTo(12))) {
            EXPECT_LT(before, span.left);
            EXPECT_LT(span.left, span.right);
            before = span.right;
        }
    }
    const std::vector<std::int32_t> endless{INT32_MAX, INT32_MAX};
    EXPECT_EQ(TextPlaces(L"ab", endless).width(), kWidestText);
}

} // namespace
} // namespace vela
