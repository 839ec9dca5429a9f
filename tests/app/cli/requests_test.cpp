#include "app/cli/requests.h"

#include "tests/app/recording_effects.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

using test::RecordingEffects;

TEST(RunRequest, ReinstallKeepsTheShortcutsAndAFirstInstallStartsWithWindows)
{
    const std::wstring startup = L"D:\\Startup\\Tamber.lnk";
    const std::wstring desktop = L"D:\\Desktop\\Tamber.lnk";
    const struct {
        std::vector<std::wstring> arguments;
        bool installed;
        std::vector<std::wstring> files;
        bool startWithWindows;
        bool desktopShortcut;
    } rows[] = {
        {{}, false, {}, true, false},
        {{}, true, {}, false, false},
        {{}, true, {startup, desktop}, true, true},
        {{}, false, {desktop}, true, true},
        {{L"--desktop"}, true, {startup}, true, true},
        {{L"--no-startup"}, false, {}, false, false},
        {{L"--no-startup"}, true, {startup}, false, false},
    };
    for (const auto& row : rows) {
        RecordingEffects effects;
        effects.files = row.files;
        if (row.installed)
            effects.products = {L"{A}"};
        const RunRequest request = readRunRequest(parseCommandLine(row.arguments), effects);
        EXPECT_EQ(request.install.startWithWindows, row.startWithWindows);
        EXPECT_EQ(request.install.desktopShortcut, row.desktopShortcut);
        EXPECT_EQ(request.install.installDir, L"C:\\Program Files\\Tamber");
    }
}

} // namespace
} // namespace setup
