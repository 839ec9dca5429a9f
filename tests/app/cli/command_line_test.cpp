#include "app/cli/command_line.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

TEST(CommandLineOptions, AreFoundAnywhereInAnyCaseAndOthersArePassedOver)
{
    const CommandLine line =
        parseCommandLine({L"stray", L"--INSTALL", L"--no-Startup", L"/quiet", L"--desktop", L"--quietly"});
    EXPECT_TRUE(line.install);
    EXPECT_TRUE(line.noStartup);
    EXPECT_TRUE(line.desktop);
    EXPECT_FALSE(line.uninstall);
    EXPECT_FALSE(line.quiet);
    EXPECT_FALSE(line.restartApp);

    const CommandLine rest = parseCommandLine({L"--uninstall", L"--restart-app", L"--quiet"});
    EXPECT_TRUE(rest.uninstall && rest.restartApp && rest.quiet);
    EXPECT_FALSE(rest.install || rest.noStartup || rest.desktop);
}

TEST(CommandLineOptions, TakeTheArgumentRightAfterTheFirstMatchingName)
{
    const struct {
        std::vector<std::wstring> arguments;
        std::wstring installDir;
        std::wstring waitPidText;
    } rows[] = {
        {{}, L"", L""},
        {{L"--install-dir"}, L"", L""},
        {{L"--install-dir", L"D:\\A b", L"--wait-pid", L"17"}, L"D:\\A b", L"17"},
        {{L"--install-dir", L"first", L"--install-dir", L"second"}, L"first", L""},
        {{L"--Install-Dir", L"--wait-pid", L"--quiet"}, L"--wait-pid", L"--quiet"},
    };
    for (const auto& row : rows) {
        const CommandLine line = parseCommandLine(row.arguments);
        EXPECT_EQ(line.installDir, row.installDir);
        EXPECT_EQ(line.waitPidText, row.waitPidText);
    }
    EXPECT_TRUE(parseCommandLine({L"--install-dir", L"--install"}).install) << "a value is still an argument";
}

TEST(CommandLineOptions, InstallWinsOverUninstall)
{
    EXPECT_EQ(runModeOf(parseCommandLine({L"--uninstall", L"--install"})), RunMode::Install);
    EXPECT_EQ(runModeOf(parseCommandLine({L"--uninstall"})), RunMode::Uninstall);
    EXPECT_EQ(runModeOf(parseCommandLine({L"--restart-app", L"--quiet"})), RunMode::Interactive);
}

TEST(CommandLineOptions, AProcessIdIsADecimalNumberOrNothing)
{
    const struct {
        std::wstring_view text;
        std::uint32_t id;
    } rows[] = {{L"4242", 4242},    {L" 12 ", 12}, {L"4294967295", 4294967295U},
                {L"4294967296", 0}, {L"", 0},      {L"0", 0},
                {L"-5", 0},         {L"12abc", 0}, {L"0x10", 0},
                {L"abc", 0}};
    for (const auto& row : rows)
        EXPECT_EQ(processIdFrom(row.text), row.id) << std::string(row.text.begin(), row.text.end());
}

} // namespace
} // namespace setup
