// The dialogs as real windows: what stands on them, and what keys and the mouse do there.
#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/notice_dialog.h"
#include "app/dialogs/progress_dialog.h"
#include "tests/app/dialogs/dialog_testing_win32.h"
#include "tests/support/test_window_win32.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

using test::host;
using test::windowText;
using vela::Rect;
using vela::testing::Desktop;

struct Part {
    const wchar_t* id;
    Rect bounds;
    const wchar_t* text;
    const wchar_t* hint;
};

void expectParts(SetupDialog& dialog, std::initializer_list<Part> parts)
{
    for (const Part& part : parts) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(part.id)));
        vela::Control* const control = vela::findControl(dialog.root(), part.id);
        ASSERT_TRUE(control);
        EXPECT_EQ(control->designBounds(), part.bounds);
        EXPECT_EQ(control->text(), part.text);
        EXPECT_EQ(control->hint(), part.hint);
    }
}

// What the buttons of the popup say, the one that Enter presses first.
std::wstring actionsOf(SetupDialog& dialog, std::initializer_list<const wchar_t*> ids)
{
    std::wstring texts;
    for (const wchar_t* id : ids) {
        vela::Control* const button = vela::findControl(dialog.popup(), id);
        texts += button ? button->text() + L" " : L"(none) ";
    }
    EXPECT_EQ(dialog.popup().dialogControl(vela::DialogRole::Primary), &dialog.popup().actionButton(0));
    return texts;
}

void expectWindow(SetupDialog& dialog, vela::Size size, const std::wstring& title)
{
    EXPECT_EQ(dialog.designSize(), size);
    ASSERT_TRUE(dialog.open());
    EXPECT_EQ(windowText(dialog.handle()), title);
    EXPECT_EQ(dialog.titleBar().text(), title);
    EXPECT_EQ(dialog.titleBar().id(), L"setup.chrome");
    EXPECT_EQ(dialog.titleBar().bounds().width, dialog.clientRect().width);
    EXPECT_FALSE(::IsWindowVisible(dialog.handle()));
}

constexpr Part kStartOption{L"start-with-windows",
                            {64, 252, 560, 28},
                            L"Spouštět s Windows",
                            L"Po instalaci vytvori Tamber.lnk ve Startup slozce aktualniho uzivatele. Tamber "
                            L"se po prihlaseni spusti rovnou schovany v tray."};
constexpr Part kDesktopOption{L"desktop-shortcut",
                              {64, 286, 560, 28},
                              L"Zástupce na ploše",
                              L"Vytvori nebo zachova Tamber.lnk na plose aktualniho uzivatele."};
constexpr Part kFolderLabel{L"install-folder-label", {64, 180, 220, 24}, L"Instalacni slozka", L""};

TEST(ChoiceDialogTest, OffersToInstallWhatIsNotThere)
{
    ChoiceDialog dialog(host(), {});
    expectWindow(dialog, {690, 420}, L"Tamber - v" TAMBER_VERSION L" Setup");
    expectParts(dialog,
                {kFolderLabel,
                 {L"install-folder",
                  {64, 206, 438, 32},
                  L"C:\\Program Files\\Tamber",
                  L"Vychozi cesta je C:\\Program Files\\Tamber. Muzes vybrat jinou slozku."},
                 {L"browse", {514, 205, 110, 34}, L"Vybrat", L"Otevre systemovy vyber instalacni slozky."},
                 kStartOption,
                 kDesktopOption});
    EXPECT_EQ(dialog.popup().id(), L"setup.popup");
    EXPECT_EQ(dialog.popup().text(), L"Instalace Tambere");
    EXPECT_EQ(dialog.popup().accessibleInfo().value,
              L"Setup nainstaluje Tambere, prida Start Menu a po instalaci na pozadi pripravi lokalni "
              L"modelove i vyvojove prostredi, kdyz to Windows dovoli.");
    EXPECT_EQ(actionsOf(dialog, {L"install", L"close"}), L"Instalovat Zavrit ");
    EXPECT_EQ(dialog.choice().install.startWithWindows, true);
    EXPECT_EQ(dialog.choice().install.desktopShortcut, false);
}

TEST(ChoiceDialogTest, OffersToReinstallOrRemoveWhatIs)
{
    ChoiceState state;
    state.installed = true;
    state.choice.install.startWithWindows = false;
    state.choice.install.desktopShortcut = true;
    ChoiceDialog dialog(host(), state);
    expectWindow(dialog, {690, 420}, L"Tamber - v" TAMBER_VERSION L" Setup");
    expectParts(dialog, {kFolderLabel,
                         {L"install-folder",
                          {64, 206, 560, 32},
                          L"C:\\Program Files\\Tamber",
                          L"Preinstalace zachova aktualni MSI produkt. Pro presun jinam nejdriv odinstaluj a "
                          L"pak nainstaluj znovu."},
                         kStartOption,
                         kDesktopOption});
    EXPECT_FALSE(vela::findControl(dialog.root(), L"browse"));
    EXPECT_EQ(dialog.popup().text(), L"Tamber je nainstalovany");
    EXPECT_EQ(dialog.popup().accessibleInfo().value,
              L"Setup nasel existujici instalaci. Muzes ji preinstalovat, odebrat z Windows, nebo nechat "
              L"beze zmen.");
    EXPECT_EQ(actionsOf(dialog, {L"reinstall", L"uninstall", L"close"}),
              L"Preinstalovat Odinstalovat Zavrit ");
    EXPECT_FALSE(dialog.choice().install.startWithWindows);
    EXPECT_TRUE(dialog.choice().install.desktopShortcut);

    // The locked field takes no key, and neither a paste.
    vela::Control* const folder = vela::findControl(dialog.root(), L"install-folder");
    dialog.focusControl(folder);
    folder->characterTyped(L"x");
    folder->keyPressed({vela::kKeyDelete, {}, false});
    EXPECT_EQ(dialog.choice().install.installDir, L"C:\\Program Files\\Tamber");
}

TEST(ChoiceDialogTest, KeysAndButtonsChoose)
{
    const struct {
        bool installed;
        std::function<void(ChoiceDialog&)> act;
        SetupAction action;
    } rows[] = {
        {false, [](auto& dialog) { test::postKey(dialog, VK_RETURN); }, SetupAction::Install},
        {true, [](auto& dialog) { test::postKey(dialog, VK_RETURN); }, SetupAction::Reinstall},
        {false, [](auto& dialog) { test::postKey(dialog, VK_ESCAPE); }, SetupAction::Close},
        {true, [](auto& dialog) { test::click(dialog, L"uninstall"); }, SetupAction::Uninstall},
        {true, [](auto& dialog) { test::click(dialog, L"close"); }, SetupAction::Close},
        {false, [](auto& dialog) { test::click(dialog, L"chrome-close"); }, SetupAction::Close},
        {true, [](auto& dialog) { ::PostMessageW(dialog.handle(), WM_SYSCOMMAND, SC_CLOSE, 0); },
         SetupAction::Close},
        // From the primary button on, the arrow goes to the next one.
        {true,
         [](auto& dialog) {
             test::postKey(dialog, VK_RIGHT);
             test::postKey(dialog, VK_RETURN);
         },
         SetupAction::Uninstall},
        {false, [](auto&) { ::PostQuitMessage(0); }, SetupAction::Close},
    };
    for (const auto& row : rows) {
        ChoiceState state;
        state.installed = row.installed;
        ChoiceDialog dialog(host(), state);
        test::whileShown(dialog, [&] { row.act(dialog); });
        ASSERT_TRUE(dialog.open());
        dialog.runModal();
        EXPECT_EQ(dialog.choice().action, row.action);
        test::swallowQuitRequest();
    }
}

TEST(ChoiceDialogTest, ReturnsWhatTheUserChanged)
{
    std::wstring shownTo;
    ChoiceDialog dialog(host(), {}, [&](HWND, const std::wstring& current) {
        shownTo = current;
        return std::optional<std::wstring>(L"E:\\Apps\\Tamber");
    });
    test::whileShown(dialog, [&] {
        test::click(dialog, L"desktop-shortcut");
        test::click(dialog, L"start-with-windows");
        test::click(dialog, L"browse");
        test::click(dialog, L"install");
    });
    ASSERT_TRUE(dialog.open());
    dialog.runModal();
    const SetupChoice choice = dialog.choice();
    EXPECT_EQ(shownTo, L"C:\\Program Files\\Tamber");
    EXPECT_EQ(choice.action, SetupAction::Install);
    EXPECT_EQ(choice.install.installDir, L"E:\\Apps\\Tamber");
    EXPECT_FALSE(choice.install.startWithWindows);
    EXPECT_TRUE(choice.install.desktopShortcut);
}

TEST(ProgressDialogTest, ShowsWhatIsUnderWay)
{
    ProgressDialog dialog(host(), L"Instaluju Tambere", L"Telo.");
    expectWindow(dialog, {640, 286}, L"Instaluju Tambere - Tamber - v" TAMBER_VERSION);
    expectParts(dialog, {{L"setup-progress.bar", {74, 166, 492, 28}, L"8%", L""},
                         {L"setup-progress.status",
                          {74, 204, 492, 28},
                          L"Pracuju. Jakmile bude hotovo, ukazu vysledek.",
                          L""}});
    EXPECT_EQ(dialog.popup().id(), L"setup-progress.popup");
    EXPECT_EQ(dialog.popup().text(), L"Instaluju Tambere");
    EXPECT_FALSE(dialog.bar().showsLabel());
    vela::ThemedButton& close = dialog.titleBar().button(vela::CaptionButton::Close);
    EXPECT_TRUE(close.isVisible());
    EXPECT_FALSE(close.isEnabled());
    EXPECT_EQ(close.hint(), L"Instalace prave probiha");
    dialog.advance();
    EXPECT_EQ(dialog.bar().value(), 15);
}

TEST(SetupDialogTest, OpensWhereTheUserLeftTheOneBefore)
{
    const Rect work = Desktop::workArea();
    // The middle of the first one, then where the second one begins: around it, but within the work area.
    const vela::Point rows[][2] = {
        {{500, 400}, {190, 262}},
        {{work.width - 400, work.height - 250}, {work.width - 710, work.height - 388}},
        {{345, 210}, {35, 72}}};
    for (const auto& [middle, corner] : rows) {
        DialogHost sharing = host();
        std::optional<vela::Point> place;
        sharing.lastMiddle = &place;
        ChoiceDialog first(sharing, {});
        ASSERT_TRUE(first.open());
        ::SetWindowPos(first.handle(), nullptr, middle.x - 345, middle.y - 210, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER);
        first.destroy();
        NoticeDialog second(sharing, {L"Nadpis", L"Telo.", false});
        ASSERT_TRUE(second.open());
        RECT own{};
        ::GetWindowRect(second.handle(), &own);
        EXPECT_EQ(own.left, corner.x);
        EXPECT_EQ(own.top, corner.y);
    }
}

TEST(NoticeDialogTest, TellsHowItEnded)
{
    for (const bool danger : {false, true}) {
        NoticeDialog dialog(host(), {L"Nadpis", L"Telo.", danger});
        expectWindow(dialog, {620, 276}, L"Nadpis - Tamber - v" TAMBER_VERSION);
        EXPECT_EQ(dialog.popup().id(), L"notice.popup");
        EXPECT_EQ(dialog.popup().styleKey(), danger ? L"danger" : L"default");
        EXPECT_EQ(actionsOf(dialog, {L"ok"}), L"OK ");
        EXPECT_TRUE(dialog.titleBar().button(vela::CaptionButton::Close).isEnabled());
    }
    const UINT keys[] = {VK_RETURN, VK_SPACE, VK_ESCAPE};
    for (const UINT key : keys) {
        NoticeDialog dialog(host(), {L"Nadpis", L"Telo.", false});
        test::whileShown(dialog, [&] { test::postKey(dialog, key); });
        ASSERT_TRUE(dialog.open());
        EXPECT_EQ(dialog.runModal(), key == VK_ESCAPE ? vela::kModalClosed : 1);
    }
}

TEST(NoticeDialogTest, ALongTextIsSeenWhole)
{
    const std::wstring path = L"C:\\" + std::wstring(300, L'a') + L"\\TamberSetup-4242-install.log";
    NoticeDialog dialog(host(), {L"Instalace selhala", L"Veta.\n\nLog: " + path, true});
    EXPECT_GT(dialog.designSize().height, 276);
    EXPECT_EQ(dialog.popup().missingHeight(), 0);
    ASSERT_TRUE(dialog.open());
    EXPECT_EQ(dialog.clientRect().height, dialog.designSize().height);
}

TEST(NoticeDialogTest, ControlAndCCopyItAsText)
{
    std::wstring copied;
    NoticeDialog dialog(host(), {L"Instalace selhala", L"Prvni.\n\nLog: C:\\l.log", true});
    test::whileShown(dialog, [&] {
        ::SetForegroundWindow(dialog.handle());
        vela::testing::drainMessages(); // the desktop lets go of all keys when the focus arrives
        Desktop::keyHalf(VK_CONTROL, true);
        Desktop::key('C');
        Desktop::keyHalf(VK_CONTROL, false);
        vela::testing::drainMessages();
        copied = dialog.textServices()->clipboardText().value_or(L"");
        dialog.endModal(1);
    });
    ASSERT_TRUE(dialog.open());
    dialog.runModal();
    const std::wstring line = L"---------------------------\r\n";
    EXPECT_EQ(copied, line + L"Instalace selhala\r\n" + line + L"Prvni.\r\n\r\nLog: C:\\l.log\r\n" + line +
                          L"OK   \r\n" + line);
}

} // namespace
} // namespace setup
