#include "app/cli/silent_modes.h"

#include "tests/app/recording_effects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace setup {
namespace {

using test::Calls;
using test::RecordingEffects;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

const std::wstring kVisible = L"visible C:\\Program Files\\Tamber\\Tamber.exe in C:\\Program Files\\Tamber";

struct InstallRow {
    std::vector<std::wstring> arguments;
    std::wstring failingCall;
    int exitCode;
    bool appStarted;
};

TEST(SilentInstall, AnswersWithItsExitCode)
{
    const InstallRow rows[] = {
        {{}, L"", 0, false},
        {{L"--restart-app"}, L"", 0, true},
        {{L"--restart-app"}, L"visible", 6, true},
        {{L"--restart-app"}, L"hidden", 0, true},
        {{L"--restart-app"}, L"msiexec", 4, false},
        {{}, L"copy", 4, false},
    };
    for (const InstallRow& row : rows) {
        RecordingEffects effects;
        effects.failingCall = row.failingCall;
        effects.failure = 1603;
        const RunRequest request = readRunRequest(parseCommandLine(row.arguments), effects);
        EXPECT_EQ(runSilentInstall(effects, effects, request), row.exitCode)
            << testing::PrintToString(row.failingCall);
        EXPECT_EQ(std::count(effects.calls.begin(), effects.calls.end(), kVisible), row.appStarted);
    }
}

TEST(SilentInstall, TellsTheResultBeforeTheApplicationStarts)
{
    RecordingEffects effects;
    runSilentInstall(effects, effects, readRunRequest(parseCommandLine({L"--restart-app"}), effects));
    ASSERT_EQ(effects.notices.size(), 1U);
    EXPECT_EQ(effects.notices[0].title, L"Nainstalovano");
    EXPECT_EQ(effects.notices[0].body, L"Tamber byl nainstalovan.");
    EXPECT_FALSE(effects.notices[0].danger);
    ASSERT_GE(effects.calls.size(), 3U);
    EXPECT_THAT(
        Calls(effects.calls.end() - 3, effects.calls.end()),
        ElementsAre(L"notice Nainstalovano", L"version C:\\Program Files\\Tamber\\Tamber.exe", kVisible));

    RecordingEffects failing;
    failing.failingCall = L"msiexec";
    failing.failure = 1620;
    runSilentInstall(failing, failing, readRunRequest({}, failing));
    ASSERT_EQ(failing.notices.size(), 1U);
    EXPECT_EQ(failing.notices[0].title, L"Instalace selhala");
    EXPECT_EQ(failing.notices[0].body, L"Akce selhala ve fazi: install\nWindows Installer exit code: 1620\n"
                                       L"MSI balicek je poskozeny nebo neplatny. Stahni setup znovu.\n"
                                       L"\nLog: C:\\Temp\\TamberSetup-4242-install.log");
    EXPECT_TRUE(failing.notices[0].danger);

    RecordingEffects quiet;
    runSilentInstall(quiet, quiet, readRunRequest(parseCommandLine({L"--quiet"}), quiet));
    EXPECT_THAT(quiet.notices, IsEmpty());
}

TEST(SilentInstall, WaitsForTheNamedProcessFirst)
{
    const struct {
        std::wstring pid;
        std::wstring failingCall;
        Calls before; // the first calls, up to the extraction
    } rows[] = {
        {L"", L"", {}},
        {L"0", L"", {}},
        {L"never", L"", {}},
        {L"4242", L"", {}}, // the setup itself
        {L"17", L"", {L"open 17", L"wait 8000"}},
        {L"17", L"open", {L"open 17"}},
    };
    for (const auto& row : rows) {
        RecordingEffects effects;
        effects.failingCall = row.failingCall;
        effects.failure = 87;
        EXPECT_EQ(runSilentInstall(effects, effects,
                                   readRunRequest(parseCommandLine({L"--wait-pid", row.pid}), effects)),
                  0);
        const auto extraction = std::find(effects.calls.begin(), effects.calls.end(),
                                          L"extract C:\\Temp\\TamberSetup-4242-Tamber.msi");
        EXPECT_THAT(Calls(effects.calls.begin(), extraction), ElementsAreArray(row.before));
    }
}

TEST(SilentUninstall, AnswersWithItsExitCodeAndNotice)
{
    RecordingEffects effects;
    effects.products = {L"{A}"};
    EXPECT_EQ(runSilentUninstall(effects, effects, false), 0);
    ASSERT_EQ(effects.notices.size(), 1U);
    EXPECT_EQ(effects.notices[0].title, L"Odinstalovano");
    EXPECT_EQ(effects.notices[0].body, L"Tamber byl odebran pres Windows Installer.");

    effects.failingCall = L"msiexec";
    effects.failure = 1602;
    EXPECT_EQ(runSilentUninstall(effects, effects, false), 5);
    ASSERT_EQ(effects.notices.size(), 2U);
    EXPECT_EQ(effects.notices[1].title, L"Odinstalace selhala");
    EXPECT_TRUE(effects.notices[1].danger);
    EXPECT_EQ(runSilentUninstall(effects, effects, true), 5);
    EXPECT_EQ(effects.notices.size(), 2U);
}

} // namespace
} // namespace setup
