#include "vela/theme/records/values.h"

#include "tests/support/skin_text.h"
#include "vela/text.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(Values, ColoursAreSixHexDigitsOrThreeDecimals)
{
    constexpr Color kGold = rgb(0xA4, 0x7A, 0x45);
    const struct {
        std::wstring_view text;
        std::optional<Color> color;
    } rows[] = {
        {L"#a47a45", kGold},
        {L"A47A45", kGold},
        {L"164,122,69", kGold},
        {L" 164 ,\t122 , 69 ", kGold},
        {L"#FF0000", rgb(255, 0, 0)},
        {L"300,-5,12", rgb(255, 0, 12)},
        {L"99999999999999999999,0,-99999999999999999999", rgb(255, 0, 0)},
        {L"#abc", {}},
        {L"#a47a45ff", {}},
        {L"##47a45", {}},
        {L"#a47a4g", {}},
        {L"164,122", {}},
        {L"164,122,69,255", {}},
        {L"164,,69", {}},
        {L"red,green,blue", {}},
        {L"", {}},
        {L"#", {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(parseColor(row.text), row.color) << narrowed(row.text);
    EXPECT_EQ(parseColor(L"#ff0000"), 0x0000FFU) << "red lies in the low byte";
}

TEST(Values, BytesAreClampedAndUnsignedNumbersUseTheirWholeRange)
{
    EXPECT_EQ(parseByte(L"300"), 255);
    EXPECT_EQ(parseByte(L"-1"), 0);
    EXPECT_EQ(parseByte(L"17 percent"), 17);
    EXPECT_EQ(parseByte(L"abc"), std::nullopt);
    EXPECT_EQ(leadingUnsigned(L"4294967295"), 4294967295U);
    EXPECT_EQ(leadingUnsigned(L"4294967296"), 4294967295U);
    EXPECT_EQ(leadingUnsigned(L"-1"), 0U);
    EXPECT_EQ(leadingUnsigned(L"x"), std::nullopt);
}

TEST(Values, BooleansAreWholeWords)
{
    for (const std::wstring_view word : {L"true", L" YES ", L"On"})
        EXPECT_EQ(parseBoolean(word), true);
    for (const std::wstring_view word : {L"false", L"No", L"\toff"})
        EXPECT_EQ(parseBoolean(word), false);
    for (const std::wstring_view word : {L"", L"1", L"0", L"tr-ue", L"yes please", L"none"})
        EXPECT_EQ(parseBoolean(word), std::nullopt) << narrowed(word);
}

TEST(Values, WeightsAreNamesOrNumbersWithinTheRange)
{
    const struct {
        std::wstring_view text;
        std::optional<std::int32_t> weight;
    } rows[] = {
        {L"thin", 100},      {L"Light", 300},    {L"regular", 400}, {L"normal", 400}, {L"medium", 500},
        {L"demi-bold", 600}, {L"semibold", 600}, {L"bold", 700},    {L"black", 900},  {L"heavy", 900},
        {L"100", 100},       {L"450", 450},      {L"900", 900},     {L"99", {}},      {L"901", {}},
        {L"-400", {}},       {L"fat", {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(parseWeight(row.text), row.weight) << narrowed(row.text);
}

TEST(Values, InsetsAreFourNumbersFromTheLeftClockwise)
{
    EXPECT_EQ(parseInsets(L"1, 2,3,-4"), (Insets{1, 2, 3, -4}));
    EXPECT_EQ(parseInsets(L"1,2,3"), std::nullopt);
    EXPECT_EQ(parseInsets(L"1,2,3,4,5"), std::nullopt);
    EXPECT_EQ(parseInsets(L"a,2,3,4"), std::nullopt);
}

TEST(Values, TintPalettesMixRolesAndHexColours)
{
    const auto colors = parseThemeColors(L"shell, #FF0000,text_hot");
    ASSERT_TRUE(colors);
    ASSERT_EQ(colors->size(), 3U);
    EXPECT_EQ((*colors)[0].role, PaletteRole::Shell);
    EXPECT_EQ((*colors)[1], (ThemeColor{rgb(255, 0, 0), {}}));
    EXPECT_EQ((*colors)[2].role, PaletteRole::TextHot);
    EXPECT_EQ(parseThemeColors(L"shell,nonsense"), std::nullopt);
}

} // namespace
} // namespace vela
