#include "vela/controls/window/dialog_window.h"

#include "tests/support/gdi_objects_gdi.h"
#include "tests/support/test_window_win32.h"
#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/widgets/designed_popup.h"
#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <functional>
#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Desktop;
using testing::drainMessages;

constexpr WindowStyle kPopup{WS_POPUP | WS_SYSMENU, 0};

std::shared_ptr<const StyleSheet> styles()
{
    static const auto sheet = std::make_shared<const StyleSheet>(buildStyleSheet(builtInSkin()));
    return sheet;
}

// A dialog as the setup makes them; `soon` runs once its loop is running.
class TestDialog : public DialogWindow {
public:
    explicit TestDialog(std::function<void(TestDialog&)> soon = {})
    {
        setCustomFrame(true);
        setDiagnostics(false);
        setMessageHook([this, soon](HWND, unsigned message, std::uintptr_t, std::intptr_t, std::intptr_t&) {
            if (message != WM_APP)
                return false;
            soon(*this);
            return true;
        });
        EXPECT_TRUE(create(::GetModuleHandleW(nullptr), L"Dialog", {400, 240}, kPopup));
        root().add(std::make_unique<ChromeTitleBar>(L"chrome", Rect{0, 0, 400, 40}, L"Dialog", Theme()));
        popup = &root().addControl(std::make_unique<DesignedPopup>(L"popup", Rect{0, 40, 400, 200}));
        popup->setActions({{L"OK", L"ok", true}, {L"Zavrit", L"close"}});
        applyStyles(styles());
        subscribe(L"ok", [this](CommandEvent&) { endModal(1); });
        subscribe(L"close",
                  [this](CommandEvent& event) { event.handled = performChromeAction(event.action); });
        if (soon)
            ::PostMessageW(handle(), WM_APP, 0, 0);
    }
    ~TestDialog() override { destroy(); }

    DesignedPopup* popup = nullptr;
};

TEST(DialogWindowTest, EndsWithTheResultItWasGiven)
{
    TestDialog dialog([](TestDialog& running) { running.endModal(7); });
    EXPECT_EQ(dialog.runModal(), 7);
    EXPECT_EQ(dialog.handle(), nullptr);
    EXPECT_EQ(dialog.runModal(), 7);
    DialogWindow neverCreated;
    EXPECT_EQ(neverCreated.runModal(), 0);
}

TEST(DialogWindowTest, EveryOtherWayToCloseItGivesFive)
{
    const std::function<void(TestDialog&)> ways[] = {
        [](TestDialog& dialog) { ::PostMessageW(dialog.handle(), WM_SYSCOMMAND, SC_CLOSE, 0); },
        [](TestDialog& dialog) { ::PostMessageW(dialog.handle(), WM_KEYDOWN, VK_ESCAPE, 0); },
        [](TestDialog& dialog) { dialog.destroy(); },
        [](TestDialog& dialog) { dialog.endModal(0); },
    };
    for (const auto& way : ways) {
        TestDialog dialog(way);
        EXPECT_EQ(dialog.runModal(), kModalClosed);
    }
}

TEST(DialogWindowTest, LooksGivenBeforeTheWindowTakeItsScale)
{
    const Size design{4 * Desktop::workArea().width, 240};
    const auto open = [&design](bool looksFirst) {
        auto dialog = std::make_unique<DialogWindow>();
        dialog->setShrinkToFit(true); // the one way to another scale that every desktop has
        auto& popup = dialog->root().addControl(
            std::make_unique<DesignedPopup>(L"popup", Rect{0, 0, design.width, design.height}));
        popup.setActions({{L"OK", L"ok", true}});
        if (looksFirst)
            dialog->applyStyles(styles());
        EXPECT_TRUE(dialog->create(::GetModuleHandleW(nullptr), L"", design, kPopup));
        EXPECT_LT(dialog->dpi(), 96);
        if (!looksFirst)
            dialog->applyStyles(styles());
        return popup.actionButton(0).bounds();
    };
    EXPECT_EQ(open(true), open(false));
}

TEST(DialogWindowTest, EnterPressesThePrimaryButton)
{
    TestDialog dialog(
        [](TestDialog& running) { ::PostMessageW(running.handle(), WM_KEYDOWN, VK_RETURN, 0); });
    EXPECT_EQ(dialog.runModal(), 1);
}

TEST(DialogWindowTest, ARealClickOnAButtonEndsIt)
{
    TestDialog dialog([](TestDialog& running) {
        const Rect button = running.popup->actionButton(0).windowRect().value_or(Rect{});
        Desktop::movePointer(running.handle(), {button.x + 10, button.y + 10});
        Desktop::button(MOUSEEVENTF_LEFTDOWN);
        Desktop::button(MOUSEEVENTF_LEFTUP);
    });
    EXPECT_EQ(dialog.runModal(), 1);
}

TEST(DialogWindowTest, TheOwnerIsDisabledMeanwhile)
{
    for (const bool enabledBefore : {true, false}) {
        testing::TestWindow owner;
        ASSERT_TRUE(owner.create(::GetModuleHandleW(nullptr), L"", {300, 200}, kPopup));
        ::EnableWindow(owner.handle(), enabledBefore);
        bool enabledMeanwhile = true;
        TestDialog dialog([&](TestDialog& running) {
            enabledMeanwhile = ::IsWindowEnabled(owner.handle());
            running.endModal(1);
        });
        EXPECT_EQ(dialog.runModal(owner.handle()), 1);
        EXPECT_FALSE(enabledMeanwhile);
        EXPECT_EQ(::IsWindowEnabled(owner.handle()) != FALSE, enabledBefore);
    }
}

TEST(DialogWindowTest, NestedDialogsEndOneByOne)
{
    int inner = 0;
    TestDialog outer([&inner](TestDialog& running) {
        TestDialog nested([](TestDialog& deepest) { deepest.endModal(3); });
        inner = nested.runModal(running.handle());
        EXPECT_TRUE(running.isAlive());
        running.endModal(2);
    });
    EXPECT_EQ(outer.runModal(), 2);
    EXPECT_EQ(inner, 3);
    MSG message{};
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST(DialogWindowTest, AQuitRequestPassesThroughEveryLoop)
{
    TestDialog outer([](TestDialog& running) {
        TestDialog nested([](TestDialog&) { ::PostQuitMessage(9); });
        nested.runModal(running.handle());
    });
    outer.runModal();
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 9u);
}

// Or the next test could not fail.
TEST(DialogWindowTest, TheCountsSeeWhatIsHeld)
{
    const int before = testing::userObjectCount();
    const std::size_t bytesBefore = testing::heapBytes();
    {
        testing::TestWindow held;
        ASSERT_TRUE(held.create(::GetModuleHandleW(nullptr), L"", {300, 200}, kPopup));
        const HMENU menu = ::CreatePopupMenu();
        EXPECT_GE(testing::userObjectCount(), before + 2);
        ::DestroyMenu(menu);
        const std::vector<char> bytes(100'000);
        EXPECT_GE(testing::heapBytes(), bytesBefore + bytes.size());
    }
    EXPECT_EQ(testing::userObjectCount(), before);
}

TEST(DialogWindowTest, FiveHundredDialogsLeaveNothingBehind)
{
    const auto openAndClose = [](int times) {
        for (int i = 0; i < times; ++i) {
            TestDialog dialog([](TestDialog& running) { running.endModal(1); });
            dialog.runModal();
        }
    };
    openAndClose(20);
    const int before = testing::gdiObjectCount();
    const int windowsBefore = testing::userObjectCount();
    const std::size_t bytesBefore = testing::heapBytes();
    openAndClose(500);
    EXPECT_LE(testing::gdiObjectCount(), before + 2);
    EXPECT_LE(testing::userObjectCount(), windowsBefore);
    EXPECT_LT(testing::heapBytes(), bytesBefore + 500 * 100) << "a hundred bytes of each dialog";
}

} // namespace
} // namespace vela
