#include "app/cli/interactive_flow.h"

#include "tests/app/recording_effects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace setup {
namespace {

using test::Calls;
using test::RecordingEffects;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A user who has decided beforehand.
class DecidedUser final : public SetupScreens {
public:
    DecidedUser(NoticeScreen& notices, SetupAction action) : notices_(notices), action_(action) {}

    SetupChoice showSetupChoice(const ChoiceState& state) override
    {
        seen = state;
        SetupChoice choice = state.choice;
        choice.action = action_;
        choice.install.installDir = folder;
        return choice;
    }
    SetupActionResult runWithProgress(std::wstring_view title, std::wstring_view body,
                                      const SetupTask& task) override
    {
        progress.emplace_back(title);
        progress.emplace_back(body);
        return resultOf(task);
    }
    void showNotice(const Notice& notice) override { notices_.showNotice(notice); }

    std::wstring folder = L"E:\\Tamber";
    ChoiceState seen;
    std::vector<std::wstring> progress;

private:
    NoticeScreen& notices_;
    SetupAction action_;
};

struct FlowRow {
    SetupAction action;
    std::wstring failingCall;
    int exitCode;
    std::wstring progressTitle;
    std::wstring progressBody;
    std::wstring noticeTitle;
    std::wstring noticeBody; // how it begins
    Calls afterTheNotice;
};

const Calls kOpened{L"version E:\\Tamber\\Tamber.exe", L"visible E:\\Tamber\\Tamber.exe in E:\\Tamber"};
const std::wstring kInstalling = L"Instaluju Tambere a pripadne zavru starsi bezici instanci. Okno zustane "
                                 L"ovladatelne; vysledek se ukaze automaticky.";
const std::wstring kReinstalling = L"Preinstalace prave bezi. Kdyz je potreba, setup nejdriv korektne zavre "
                                   L"starsi Tamber okno a pak pokracuje.";
const std::wstring kRemoving = L"Odinstalace prave bezi. Setup zavre bezici Tamber okno a odebere aplikaci "
                               L"pres Windows Installer.";
const std::wstring kGoesOn =
    L" Po zavreni tohoto okna ho otevru. Lokalni modely a vyvojove nastroje se muzou "
    L"jeste chvili pripravovat na pozadi.";

const FlowRow kRows[] = {
    {SetupAction::Install, L"", 0, L"Instaluju Tambere", kInstalling, L"Nainstalovano",
     L"Tamber byl nainstalovan." + kGoesOn, kOpened},
    {SetupAction::Install,
     L"msiexec",
     4,
     L"Instaluju Tambere",
     kInstalling,
     L"Instalace selhala",
     L"Akce selhala ve fazi: install\n",
     {}},
    {SetupAction::Reinstall, L"", 0, L"Preinstalovavam Tambere", kReinstalling, L"Preinstalovano",
     L"Tamber byl preinstalovan." + kGoesOn, kOpened},
    {SetupAction::Reinstall,
     L"copy",
     4,
     L"Preinstalovavam Tambere",
     kReinstalling,
     L"Instalace selhala",
     L"Akce selhala ve fazi: install\n",
     {}},
    {SetupAction::Reinstall, L"visible", 0, L"Preinstalovavam Tambere", kReinstalling, L"Preinstalovano",
     L"Tamber byl preinstalovan." + kGoesOn, kOpened},
    {SetupAction::Uninstall,
     L"",
     0,
     L"Odebírám Tambere",
     kRemoving,
     L"Odinstalovano",
     L"Tamber byl odebran pres Windows Installer.",
     {}},
    {SetupAction::Uninstall,
     L"msiexec",
     5,
     L"Odebírám Tambere",
     kRemoving,
     L"Odinstalace selhala",
     L"Akce selhala ve fazi: uninstall\n",
     {}},
};

TEST(InteractiveFlow, GoesFromTheChoiceToTheExitCode)
{
    for (const FlowRow& row : kRows) {
        SCOPED_TRACE(::testing::PrintToString(row.noticeTitle));
        RecordingEffects effects;
        effects.products = {L"{A}"};
        effects.failingCall = row.failingCall;
        effects.failure = 1603;
        DecidedUser user(effects, row.action);
        EXPECT_EQ(runInteractiveFlow(effects, user), row.exitCode);
        EXPECT_THAT(user.progress, ElementsAre(row.progressTitle, row.progressBody));
        ASSERT_EQ(effects.notices.size(), 1U);
        EXPECT_EQ(effects.notices[0].title, row.noticeTitle);
        EXPECT_TRUE(effects.notices[0].body.starts_with(row.noticeBody));
        EXPECT_EQ(effects.notices[0].danger, row.exitCode != 0);
        const auto notice =
            std::find(effects.calls.begin(), effects.calls.end(), L"notice " + row.noticeTitle);
        ASSERT_NE(notice, effects.calls.end());
        EXPECT_EQ(Calls(notice + 1, effects.calls.end()), row.afterTheNotice);
    }
}

TEST(InteractiveFlow, ClosingTheChoiceDoesNothing)
{
    RecordingEffects effects;
    DecidedUser user(effects, SetupAction::Close);
    EXPECT_EQ(runInteractiveFlow(effects, user), 0);
    EXPECT_THAT(user.progress, IsEmpty());
    EXPECT_THAT(effects.calls, IsEmpty());
}

TEST(InteractiveFlow, StartsFromTheMachineAsItIs)
{
    const std::wstring startup = L"D:\\Startup\\Tamber.lnk";
    const std::wstring desktop = L"D:\\Desktop\\Tamber.lnk";
    const struct {
        bool installed;
        std::vector<std::wstring> files;
        bool startWithWindows;
        bool desktopShortcut;
    } rows[] = {{false, {}, true, false},
                {false, {desktop}, true, true},
                {true, {}, false, false},
                {true, {startup, desktop}, true, true}};
    for (const auto& row : rows) {
        RecordingEffects effects;
        effects.files = row.files;
        if (row.installed)
            effects.products = {L"{A}"};
        DecidedUser user(effects, SetupAction::Close);
        runInteractiveFlow(effects, user);
        EXPECT_EQ(user.seen.installed, row.installed);
        EXPECT_EQ(user.seen.choice.action, SetupAction::Close);
        EXPECT_EQ(user.seen.choice.install.installDir, L"C:\\Program Files\\Tamber");
        EXPECT_EQ(user.seen.choice.install.startWithWindows, row.startWithWindows);
        EXPECT_EQ(user.seen.choice.install.desktopShortcut, row.desktopShortcut);
    }
}

} // namespace
} // namespace setup
