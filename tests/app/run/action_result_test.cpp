#include "app/run/action_result.h"

#include <new>

#include <gtest/gtest.h>

namespace setup {
namespace {

TEST(ResultText, NamesWhatIsKnownLineByLine)
{
    SetupActionResult result;
    result.phase = L"uninstall";
    EXPECT_EQ(composeResultText(result, L"done"), L"Akce selhala ve fazi: uninstall\n");
    result.exitCode = 4294967295U;
    result.message = L"Veta.";
    result.logPath = L"C:\\l.log";
    EXPECT_EQ(composeResultText(result, L"done"), L"Akce selhala ve fazi: uninstall\n"
                                                  L"Windows Installer exit code: 4294967295\n"
                                                  L"Veta.\n"
                                                  L"\nLog: C:\\l.log");
    result.success = true;
    EXPECT_EQ(composeResultText(result, L"done"), L"done");
}

TEST(ActionResult, WhateverARunThrowsBecomesAResult)
{
    const SetupActionResult result = resultOf([]() -> SetupActionResult { throw std::bad_alloc(); });
    EXPECT_FALSE(result.success);
    EXPECT_EQ(
        composeResultText(result, L"unused"),
        L"Akce selhala ve fazi: setup\nSetup narazil na neocekavanou chybu. Zkus ho prosim spustit znovu.\n");
}

} // namespace
} // namespace setup
