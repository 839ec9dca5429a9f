// The setup with its windows, used as a person would: what is on the screen, and what it does to the machine.
#include "tests/end_to_end/setup_test_win32.h"
#include "tests/end_to_end/setup_window_win32.h"

#include <algorithm>
#include <filesystem>
#include <functional>

namespace end_to_end {
namespace {

const std::wstring kApplication = std::wstring(kProductFolder) + L"\\Tamber.exe";
const std::wstring kPlaygroundFolder = kPlayground;

std::wstring completed(std::wstring_view title)
{
    return std::wstring(title).append(L" - Tamber - v" TAMBER_VERSION);
}

// How often the setup has opened the application for its user.
std::ptrdiff_t openings()
{
    const std::vector<ApplicationStart> starts = applicationStarts();
    return std::count_if(starts.begin(), starts.end(),
                         [](const auto& start) { return start.showCommand == SW_SHOWNORMAL; });
}

class Interactive : public SetupTest {
protected:
    static SetupWindow choiceOf(const Program& setup)
    {
        return {setup, kSetupTitle, installedProducts().empty() ? installPlan() : installedPlan()};
    }
    static SetupWindow noticeOf(const Program& setup, std::wstring_view title)
    {
        return {setup, completed(title), noticePlan()};
    }

    // Closing the notice of a success brings the application in front; until then it has only been started in
    // the background.
    static void expectOpenedAfter(const Program& setup, std::ptrdiff_t openedBefore,
                                  const std::function<void()>& closeNotice)
    {
        EXPECT_EQ(openings(), openedBefore);
        closeNotice();
        EXPECT_EQ(setup.wait(), 0U);
        EXPECT_TRUE(eventually([] { return titleOf(::GetForegroundWindow()) == L"Tamber"; }));
        EXPECT_EQ(openings(), openedBefore + 1);
    }
};

TEST_F(Interactive, InstallsReinstallsAndUninstallsByMouse)
{
    // Options of the silent modes mean nothing here.
    const Program install = startSetup(L"--quiet --no-startup --desktop --restart-app --install-dir "
                                       L"\"C:\\Tamber tests\\unused\"");
    const SetupWindow choice = choiceOf(install);
    choice.savePicture(L"choice_install");
    choice.pointAt(L"desktop-shortcut");
    EXPECT_TRUE(eventually([&] { return visibleWindows(install.id()).size() == 2; })) << "no hint";
    choice.savePicture(L"choice_hint");
    choice.click(L"desktop-shortcut");
    choice.click(L"install");
    const SetupWindow installed = noticeOf(install, L"Nainstalovano");
    installed.savePicture(L"notice_installed");
    EXPECT_FALSE(installed.hasDangerLook());
    expectOpenedAfter(install, 0, [&] { installed.click(L"ok"); });
    EXPECT_TRUE(exists(kApplication));
    EXPECT_FALSE(exists(kPlaygroundFolder + L"\\unused"));
    EXPECT_TRUE(exists(startupShortcut()));
    EXPECT_TRUE(exists(desktopShortcut()));
    EXPECT_EQ(contents(skinsFile()), contents(source(L"resources\\00-vela-default-skins.json")));

    ::DeleteFileW(startupShortcut().c_str());
    const Program reinstall = startSetup(L"");
    const SetupWindow again = choiceOf(reinstall);
    again.savePicture(L"choice_installed");
    again.click(L"install-folder");
    type(L"nowhere");
    again.click(L"reinstall");
    const SetupWindow reinstalled = noticeOf(reinstall, L"Preinstalovano");
    expectOpenedAfter(reinstall, 1, [&] { reinstalled.click(L"ok"); });
    EXPECT_TRUE(exists(kApplication)) << "the folder could be changed";
    EXPECT_FALSE(exists(startupShortcut())) << "the user's choice was not kept";
    EXPECT_TRUE(exists(desktopShortcut())) << "the user's choice was not kept";

    const Program uninstall = startSetup(L"");
    choiceOf(uninstall).click(L"uninstall");
    const SetupWindow uninstalled = noticeOf(uninstall, L"Odinstalovano");
    uninstalled.savePicture(L"notice_uninstalled");
    uninstalled.click(L"ok");
    EXPECT_EQ(uninstall.wait(), 0U);
    EXPECT_TRUE(installedProducts().empty());
    EXPECT_FALSE(exists(kApplication));
    EXPECT_FALSE(exists(desktopShortcut()));
    EXPECT_EQ(openings(), 2);
}

TEST_F(Interactive, InstallsReinstallsAndUninstallsByKeyboard)
{
    const Program install = startSetup(L"");
    const SetupWindow choice = choiceOf(install);
    for (int steps = 0; steps < 2; ++steps)
        press(VK_TAB, {VK_SHIFT});
    press(VK_SPACE); // no longer with Windows
    press(VK_TAB);
    choice.savePicture(L"choice_keyboard");
    press(VK_TAB);
    press(VK_RETURN);
    noticeOf(install, L"Nainstalovano").savePicture(L"notice_keyboard");
    expectOpenedAfter(install, 0, [] { press(VK_RETURN); });
    EXPECT_FALSE(exists(startupShortcut()));
    EXPECT_FALSE(exists(desktopShortcut()));

    const Program reinstall = startSetup(L"");
    choiceOf(reinstall);
    for (int steps = 0; steps < 5; ++steps)
        press(VK_TAB); // from the button that stands first round to the two options
    press(VK_SPACE);
    press(VK_TAB);
    press(VK_RETURN);
    noticeOf(reinstall, L"Preinstalovano");
    expectOpenedAfter(reinstall, 1, [] { press(VK_ESCAPE); });
    EXPECT_FALSE(exists(startupShortcut()));
    EXPECT_TRUE(exists(desktopShortcut()));

    const Program uninstall = startSetup(L"");
    choiceOf(uninstall);
    press(VK_RIGHT);
    press(VK_SPACE);
    noticeOf(uninstall, L"Odinstalovano");
    press(VK_F4, {VK_MENU});
    EXPECT_EQ(uninstall.wait(), 0U);
    EXPECT_TRUE(installedProducts().empty());
    EXPECT_FALSE(exists(desktopShortcut()));
}

TEST_F(Interactive, InstallsIntoTheFolderThatIsPickedAndTyped)
{
    std::filesystem::create_directories(kPlaygroundFolder + L"\\picked");
    const Program install = startSetup(L"");
    const SetupWindow choice = choiceOf(install);
    const auto pick = [&choice](std::wstring_view typed, WORD lastKey) {
        choice.click(L"browse");
        EXPECT_TRUE(eventually(
            [] { return titleOf(::GetForegroundWindow()) == L"Vyber instalacni slozku Tambere"; }));
        type(typed);
        press(lastKey);
        EXPECT_TRUE(eventually([&] { return ::GetForegroundWindow() == choice.handle(); }));
    };
    pick(kPlaygroundFolder + L"\\picked", VK_RETURN);
    pick(kPlaygroundFolder, VK_ESCAPE); // changes nothing
    choice.click(L"install-folder");
    press(VK_END);
    type(L" \u0159\\"); // the user adds to the name
    choice.savePicture(L"choice_folder");
    choice.click(L"install");
    noticeOf(install, L"Nainstalovano").click(L"chrome-close");
    EXPECT_EQ(install.wait(), 0U);
    EXPECT_TRUE(exists(kPlaygroundFolder + L"\\picked\\Tamber \u0159\\Tamber.exe"));
    EXPECT_TRUE(exists(kPlaygroundFolder + L"\\picked\\Tamber \u0159\\TamberSetup.exe"));
    EXPECT_FALSE(exists(kApplication));
}

TEST_F(Interactive, LeftWithoutAChoiceChangesNothing)
{
    const std::function<void(const SetupWindow&)> ways[] = {
        [](const SetupWindow& choice) { choice.click(L"close"); },
        [](const SetupWindow& choice) { choice.click(L"chrome-close"); },
        [](const SetupWindow&) { press(VK_ESCAPE); },
        [](const SetupWindow&) { press(VK_F4, {VK_MENU}); },
    };
    for (const bool installed : {false, true}) {
        ASSERT_EQ(installed ? runSetup(L"--install --quiet") : 0U, 0U);
        const auto products = installedProducts();
        for (const auto& leave : ways) {
            const Program setup = startSetup(L"--quiet --desktop --restart-app");
            const SetupWindow choice = choiceOf(setup);
            choice.click(L"desktop-shortcut");
            leave(choice);
            EXPECT_EQ(setup.wait(), 0U);
            EXPECT_FALSE(exists(runFile(L"Tamber.msi")));
            EXPECT_FALSE(exists(runFile(L"uninstall.log")));
        }
        EXPECT_EQ(installedProducts(), products);
        EXPECT_EQ(exists(kProductFolder), installed);
        EXPECT_FALSE(exists(desktopShortcut()));
        EXPECT_EQ(openings(), 0);
    }
}

TEST_F(Interactive, AFailedRunSaysSoAndOpensNothing)
{
    const Program failing = startSetup(L"", builtFile(L"setup_with_failing_package.exe"));
    choiceOf(failing).click(L"install");
    const SetupWindow failed = noticeOf(failing, L"Instalace selhala");
    failed.savePicture(L"notice_failed");
    EXPECT_TRUE(failed.hasDangerLook());
    press('C', {VK_CONTROL});
    const std::wstring line = L"---------------------------\r\n";
    const std::wstring copied = line + L"Instalace selhala\r\n" + line +
                                L"Akce selhala ve fazi: install\r\nWindows Installer exit code: 1603\r\n"
                                L"Windows Installer nahlasil obecne selhani. Nejcasto jde o zamceny soubor "
                                L"nebo blokaci bezpecnostnim softwarem.\r\n\r\nLog: " +
                                runFile(L"install.log") + L"\r\n" + line + L"OK   \r\n" + line;
    EXPECT_TRUE(eventually([&] { return clipboardText() == copied; }))
        << ::testing::PrintToString(clipboardText());
    failed.click(L"ok");
    EXPECT_EQ(failing.wait(), 4U);
    EXPECT_TRUE(installedProducts().empty());
    EXPECT_TRUE(applicationStarts().empty());

    const Program old = startSetup(L"", builtFile(L"setup_with_old_version_package.exe"));
    choiceOf(old).click(L"install");
    const SetupWindow refused = noticeOf(old, L"Instalace selhala");
    refused.savePicture(L"notice_old_version");
    EXPECT_TRUE(refused.hasDangerLook());
    press(VK_RETURN);
    EXPECT_EQ(old.wait(), 4U);
    EXPECT_TRUE(applicationStarts().empty());
    ASSERT_EQ(runSetup(L"--uninstall --quiet"), 0U);

    ASSERT_EQ(runInstaller(L"/i " + inQuotes(package(L"clinging_package.msi"))), 0U);
    const Program clinging = startSetup(L"");
    choiceOf(clinging).click(L"uninstall");
    const SetupWindow kept = noticeOf(clinging, L"Odinstalace selhala");
    kept.savePicture(L"notice_uninstall_failed");
    EXPECT_TRUE(kept.hasDangerLook());
    kept.click(L"chrome-close");
    EXPECT_EQ(clinging.wait(), 5U);
    EXPECT_EQ(installedProducts().size(), 1U);
}

TEST_F(Interactive, ARunUnderWayIsSeenThroughWhateverTheUserDoes)
{
    // Applications that do not close: the setup waits 5 s for each, or until the test ends them.
    std::vector<Program> applications;
    applications.push_back(startApplication(L"--deaf --start-hidden"));
    while (applications.size() < 12)
        applications.emplace_back(kPlaygroundFolder + L"\\Tamber.exe", L"--deaf --start-hidden");
    const Program setup = startSetup(L"");
    choiceOf(setup).click(L"install");
    const SetupWindow progress(setup, completed(L"Instaluju Tambere"), progressPlan());
    progress.savePicture(L"progress");
    progress.click(L"chrome-close");
    press(VK_ESCAPE);
    press(VK_RETURN);
    press(VK_F4, {VK_MENU});
    ::PostMessageW(progress.handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(::SendMessageW(progress.handle(), WM_QUERYENDSESSION, 0, 0), FALSE);

    // It goes where it is put and paints itself there.
    RECT place{};
    ::GetWindowRect(progress.handle(), &place);
    EXPECT_TRUE(::SetWindowPos(progress.handle(), nullptr, place.left + 40, place.top + 30, 0, 0,
                               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE));
    EXPECT_TRUE(eventually([&, before = progress.picture()] { return progress.picture() != before; }))
        << "the bar stands still";

    const Program second(finishedSetup(), L"");
    noticeOf(second, L"Instalace uz bezi").savePicture(L"notice_second");
    press(VK_RETURN);
    EXPECT_EQ(second.wait(), 0U);

    EXPECT_TRUE(progress.isThere());
    for (const Program& application : applications)
        application.terminate();
    const SetupWindow notice = noticeOf(setup, L"Nainstalovano");
    EXPECT_FALSE(progress.isThere());
    notice.click(L"ok");
    EXPECT_EQ(setup.wait(), 0U);
}

TEST_F(Interactive, SilentRunsTellTheirEndUnlessTheyAreQuiet)
{
    const Program install = startSetup(L"--install --restart-app");
    const SetupWindow installed = noticeOf(install, L"Nainstalovano");
    installed.savePicture(L"notice_silent");
    EXPECT_TRUE(exists(skinsFile()));
    expectOpenedAfter(install, 0, [] { press(VK_SPACE); });

    const Program uninstall = startSetup(L"--uninstall");
    noticeOf(uninstall, L"Odinstalovano").click(L"ok");
    EXPECT_EQ(uninstall.wait(), 0U);

    const Program failing = startSetup(L"--install", builtFile(L"setup_without_package.exe"));
    const SetupWindow failed = noticeOf(failing, L"Instalace selhala");
    EXPECT_TRUE(failed.hasDangerLook());
    failed.click(L"ok");
    EXPECT_EQ(failing.wait(), 4U);
}

} // namespace
} // namespace end_to_end
