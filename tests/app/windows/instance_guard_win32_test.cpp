#include "app/windows/instance_guard_win32.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

TEST(SetupInstanceGuard, LetsOneSetupWorkAtATime)
{
    const wchar_t* const name = L"Local\\Corvalin.Tamber.Setup.Test";
    {
        const SetupInstanceGuard first(name);
        EXPECT_FALSE(first.alreadyRunning());
        EXPECT_TRUE(SetupInstanceGuard(name).alreadyRunning());
        EXPECT_TRUE(SetupInstanceGuard(name).alreadyRunning())
            << "one that was turned away takes nothing with it";
    }
    EXPECT_FALSE(SetupInstanceGuard(name).alreadyRunning());
}

} // namespace
} // namespace setup
