#include "vela/render/text/text_lines.h"

#include "vela/text_clusters.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

// Every unit is ten pixels wide, so widths in the tables count characters.
class TenPixels final : public TextMeasurer {
public:
    void measure(std::wstring_view text, std::vector<std::int32_t>& ends) const override
    {
        ends.clear();
        for (std::size_t i = 0; i < text.size(); ++i)
            ends.push_back(static_cast<std::int32_t>(i + 1) * 10);
    }
};
const TenPixels kMeasurer;

TEST(TextLinesTest, BreaksAtBlanksAndInsideWordsThatAreTooLong)
{
    const struct {
        const wchar_t* text;
        std::int32_t width;
        const wchar_t* lines;
    } rows[] = {
        {L"jedna dva", 90, L"jedna dva"},
        {L"jedna dva", 89, L"jedna\ndva"},
        {L"jedna   dva", 50, L"jedna\ndva"},
        {L"jedna   ", 50, L"jedna"},
        {L"a b c d", 30, L"a b\nc d"},
        {L"ab abcdefghij c", 50, L"ab\nabcde\nfghij\nc"},
        {L"x\\abc\\defgh", 70, L"x\\abc\\\ndefgh"}, // behind a separator
        {L"a\\bcdefghijk", 70, L"a\\bcdef\nghijk"}, // but not when that wastes the line
        {L"jedna\ndva\r\ntri\rctyri", 90, L"jedna\ndva\ntri\nctyri"},
        {L"a\n\nb", 90, L"a\n\nb"},
        {L"a\tb", 90, L"a b"},
        {L"nedelitelna\u00A0mezera", 110, L"nedelitelna\n\u00A0mezera"},
        {L"abc", 0, L"a\nb\nc"}, // at least one cluster a line, or nothing would ever end
    };
    for (const auto& row : rows)
        EXPECT_EQ(wrapText(row.text, row.width, kMeasurer).text, row.lines) << row.width;
}

TEST(TextLinesTest, ShowsOnlyFullLinesAndMarksWhatIsLeftOver)
{
    const struct {
        const wchar_t* text;
        Size room;
        const wchar_t* lines;
    } rows[] = {
        {L"jedna dva tri", {50, 60}, L"jedna\ndva\ntri"}, {L"jedna dva tri", {50, 59}, L"jedna\ndva\u2026"},
        {L"jedna dva tri", {50, 1}, L"jedn\u2026"},       {L"jedna dva tri", {80, 20}, L"jedna d\u2026"},
        {L"jedna\ndva", {90, 20}, L"jedna\u2026"}, // it would fit, but something follows
        {L"jedna\n", {90, 20}, L"jedna\u2026"},           {L"jedna", {10, 20}, L"\u2026"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(composeText(row.text, TextWrap::Words, row.room, 20, kMeasurer).text, row.lines);
}

TEST(TextLinesTest, ASingleLineKeepsAllOrEndsInAnEllipsis)
{
    const struct {
        const wchar_t* text;
        std::int32_t width;
        const wchar_t* line;
    } rows[] = {
        {L"Instalovat", 100, L"Instalovat"}, {L"Instalovat", 99, L"Instalov\u2026"},
        {L"dva slova", 50, L"dva\u2026"},    {L"dva\nslova", 90, L"dva slova"},
        {L"slovo   ", 50, L"slovo   "},      {L"slovo", -5, L"\u2026"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(composeText(row.text, TextWrap::SingleLine, {row.width, 5}, 20, kMeasurer).text, row.line);
}

// Whatever the width, every cut falls where a caret may stand.
TEST(TextLinesTest, NeverSplitsAClusterAtAnyWidth)
{
    const std::wstring text =
        L"Prr\u030Celoz\u030Cte \xD83D\xDE80\xD83D\xDC68\u200D\xD83D\xDC69 \xD83D\xDC4B\xD83C\xDFFD konec";
    for (std::int32_t width = 0; width <= 400; width += 10) {
        const std::wstring wrapped = wrapText(text, width, kMeasurer).text;
        std::size_t at = 0;
        for (std::size_t i = 0; i < wrapped.size(); ++i) {
            if (wrapped[i] == L'\n') {
                while (at < text.size() && text[at] == L' ')
                    ++at;
                EXPECT_EQ(nearestCaretStop(text, at), at) << width;
            } else {
                ASSERT_EQ(wrapped[i], text[at]);
                ++at;
            }
        }
        EXPECT_EQ(at, text.size());

        const std::wstring cut = composeText(text, TextWrap::SingleLine, {width, 20}, 20, kMeasurer).text;
        const std::size_t kept = cut == text ? text.size() : cut.size() - 1;
        EXPECT_EQ(nearestCaretStop(text, kept), kept) << width;
        EXPECT_EQ(cut.compare(0, kept, text, 0, kept), 0);
    }
}

// Widths as large as numbers go, in rooms of any size.
TEST(TextLinesTest, NoWidthIsTooLarge)
{
    class Endless final : public TextMeasurer {
    public:
        void measure(std::wstring_view text, std::vector<std::int32_t>& ends) const override
        {
            ends.assign(text.size(), INT32_MAX);
        }
    };
    const Endless measurer;
    for (const std::int32_t width : {INT32_MIN, -1, 0, INT32_MAX}) {
        for (const TextWrap wrap : {TextWrap::SingleLine, TextWrap::Words}) {
            const TextLines lines = composeText(L"jedna dva", wrap, {width, 20}, 20, measurer);
            EXPECT_EQ(lines.text, width == INT32_MAX ? L"jedna dva" : L"\u2026");
        }
    }
    EXPECT_EQ(wrapText(L"a b", INT32_MAX, measurer).count, 1);
}

TEST(TextLinesTest, AnUnbrokenLineKeepsEveryUnitButThoseThatBreakIt)
{
    EXPECT_EQ(unbrokenLine(L"a\tb\r\nc\u2028d\u2029e\u0085f  "), L"a b  c d e f  ");
}

} // namespace
} // namespace vela
