#include "vela/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace vela {
namespace {

TEST(Text, TrimsEveryKindOfWhiteSpaceAtBothEnds)
{
    EXPECT_EQ(trimmed(L" \t\r\n\f\va b\v\f\n\r\t "), L"a b");
    EXPECT_EQ(trimmed(L" \t "), L"");
}

TEST(Text, ComparesWithoutAsciiCaseOnly)
{
    EXPECT_TRUE(equalsIgnoringAsciiCase(L"--Install", L"--INSTALL"));
    EXPECT_FALSE(equalsIgnoringAsciiCase(L"--install", L"--install-dir"));
    EXPECT_FALSE(equalsIgnoringAsciiCase(L"\u00e9", L"\u00c9"));
}

TEST(Text, ReadsTheLeadingIntegerAndStopsAtTheLimits)
{
    const struct {
        std::wstring_view text;
        std::optional<std::int32_t> value;
    } rows[] = {
        {L"42", 42},
        {L" -7x", -7},
        {L"+3", 3},
        {L"", {}},
        {L"abc", {}},
        {L"-", {}},
        {L"7 8", 7},
        {L"0x10", 0},
        {L"99999999999999999999", 2147483647},
        {L"-99999999999999999999", -2147483647 - 1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(leadingInteger(row.text), row.value) << std::string(row.text.begin(), row.text.end());
}

TEST(Text, WritesWholeNumbersInDecimal)
{
    EXPECT_EQ(decimalText(0), L"0");
    EXPECT_EQ(decimalText(-7), L"-7");
    EXPECT_EQ(decimalText(4294967295U), L"4294967295");
    EXPECT_EQ(decimalText(std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
    EXPECT_EQ(decimalText(std::numeric_limits<std::uint64_t>::max()), L"18446744073709551615");
}

} // namespace
} // namespace vela
