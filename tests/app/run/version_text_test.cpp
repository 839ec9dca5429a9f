#include "app/run/version_text.h"

#include "app/run/identity.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

struct Pair {
    std::wstring from;
    std::wstring to;
};

TEST(VersionText, OfThisSetup) { EXPECT_EQ(kVersionText, L"0.1.492"); }

TEST(VersionText, IgnoresZerosFromTheFourthPartOn)
{
    EXPECT_EQ(versionText({0, 1, 492, 65535}), L"0.1.492.65535");
    const Pair rows[] = {
        {L"0.1.492.0", L"0.1.492"},     {L" 0,1,492,0\n", L"0.1.492"},
        {L"0.1.492.0.0", L"0.1.492"},   {L"0.1.492", L"0.1.492"},
        {L"0.1.0", L"0.1.0"},           {L"0.1.0.0", L"0.1.0"},
        {L"0.1.492.10", L"0.1.492.10"}, {L"", L""},
        {L"0.1.492.5", L"0.1.492.5"},
    };
    for (const Pair& row : rows)
        EXPECT_EQ(normalizeVersion(row.from), row.to);
}

} // namespace
} // namespace setup
