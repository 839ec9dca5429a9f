#include "app/effects/step_log.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

TEST(StepLog, WritesErrorsAsWindowsDocumentsThem)
{
    EXPECT_EQ(stepLine(L"copy", 0, L""), L"copy: ok");
    EXPECT_EQ(stepLine(L"copy", 5, L"x"), L"copy: failed, error 5 (x)");
    EXPECT_EQ(stepLine(L"link", 0x8007000E, L""), L"link: failed, error 0x8007000E");
}

} // namespace
} // namespace setup
