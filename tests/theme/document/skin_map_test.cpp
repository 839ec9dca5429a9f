#include "vela/theme/document/skin_map.h"

#include "tests/support/skin_text.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(SkinMap, FlattensTreesIntoTexts)
{
    const SkinMap map = skinMapOf("{'Button_Style': {'a-b': 1.9, 'c': -0.5, 'd': true, 'e': null, 'f': [],"
                                  " 'g': [1, 'x', false], 'h': [1, {}], 'i': {}, 'j': 'text'},"
                                  " 'buttonstyle.k': 1e400, 'button': 2}");
    const SkinView button = SkinView(map).at(std::string_view("buttonStyle"));
    const struct {
        std::wstring_view key;
        std::wstring_view text;
    } rows[] = {{L"ab", L"1"}, {L"A_B", L"1"},       {L"c", L"-0"},   {L"d", L"true"},
                {L"f", L""},   {L"g", L"1,x,false"}, {L"j", L"text"}, {L"k", L"1000000000000000"}};
    for (const auto& row : rows) {
        const SkinView found = button.at(row.key);
        ASSERT_EQ(found.textCount(), 1U) << narrowed(row.key);
        EXPECT_EQ(found.text(0), row.text) << narrowed(row.key);
    }
    for (const std::wstring_view absent : {L"e", L"h", L"i", L"a", L""})
        EXPECT_TRUE(button.at(absent).empty()) << narrowed(absent);
    EXPECT_EQ(button.childNames(),
              (std::vector<std::wstring_view>{L"ab", L"c", L"d", L"f", L"g", L"j", L"k"}));
    EXPECT_EQ(SkinView(map).at(std::wstring_view(L"button")).text(0), L"2");
}

TEST(SkinMap, LeavesOutPathsThatNoReaderAsksFor)
{
    const std::string deep = [] {
        std::string text = "1";
        for (int i = 0; i < 250; ++i)
            text = "{'k': " + text + "}";
        return text;
    }();
    EXPECT_TRUE(skinMapOf(deep).empty());
    EXPECT_TRUE(skinMapOf("{'" + std::string(5000, 'k') + "': {'a': 1, 'b': 2}}").empty());
}

} // namespace
} // namespace vela
