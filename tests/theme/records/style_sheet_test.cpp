#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vela {
namespace {

PanelStyle padded(std::int32_t padding)
{
    PanelStyle style;
    style.padding = padding;
    return style;
}

TEST(StyleSheet, AnswersAnUnknownVariantWithTheDefault)
{
    StyleSheet sheet;
    sheet.table<PanelStyle>().set(kDefaultVariant, padded(7));
    sheet.table<PanelStyle>().set(L"glass", padded(9));
    EXPECT_EQ(sheet.find<PanelStyle>(L"glass").padding, 9);
    EXPECT_EQ(sheet.find<PanelStyle>(L"velvet").padding, 7);
    EXPECT_EQ(sheet.find<PanelStyle>(L"").padding, 7);
    EXPECT_EQ(sheet.table<PanelStyle>().tryFind(L"velvet"), nullptr);
}

TEST(StyleSheet, SetsAVariantInPlaceAndKeepsTheOrder)
{
    VariantTable<PanelStyle> table;
    table.set(L"glass", padded(1));
    table.set(L"velvet", padded(2));
    table.set(L"glass", padded(3));
    ASSERT_EQ(table.size(), 3U);
    const std::wstring_view names[] = {L"default", L"glass", L"velvet"};
    EXPECT_TRUE(std::equal(table.begin(), table.end(), names,
                           [](const auto& variant, std::wstring_view name) { return variant.name == name; }));
    EXPECT_EQ(table.find(L"glass").padding, 3);
}

} // namespace
} // namespace vela
