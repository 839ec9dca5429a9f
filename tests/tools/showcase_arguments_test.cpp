#include "tools/showcase/arguments.h"

#include <gtest/gtest.h>

namespace showcase {
namespace {

std::optional<Arguments> parsed(std::vector<std::wstring_view> words) { return parseArguments(words); }

TEST(ShowcaseArgumentsTest, WordsAreToldByTheirForm)
{
    EXPECT_EQ(parsed({}), Arguments());
    const Arguments all{L"classic", L"a b/Harbour.JSON", 144};
    EXPECT_EQ(parsed({L"classic", L"a b/Harbour.JSON", L"144"}), all);
    EXPECT_EQ(parsed({L"144", L"a b/Harbour.JSON", L"classic"}), all);
    EXPECT_EQ(parsed({L"win11-light"})->skinId, L"win11-light");
}

TEST(ShowcaseArgumentsTest, WhatSaysNothingIsRefused)
{
    const std::vector<std::wstring_view> refused[] = {
        {L"--help"},      {L""},           {L"12"},          {L"9999"},
        {L"99999999999"}, {L"96", L"144"}, {L"one", L"two"}, {L"a.json", L"b.json"}};
    for (const auto& words : refused)
        EXPECT_FALSE(parsed(words)) << words.front().size();
}

} // namespace
} // namespace showcase
