// What a window tells the desktop, and how it shrinks to fit one.
#include "vela/controls/window/tooltip_window_win32.h"
#include "vela/controls/window/window.h"

#include "tests/support/test_window_win32.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Desktop;
using testing::drainMessages;
using testing::TestWindow;

constexpr WindowStyle kPopup{WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, 0};

class WindowDesktopTest : public ::testing::Test {
protected:
    void open(Size client)
    {
        window.setCustomFrame(true);
        ASSERT_TRUE(window.create(::GetModuleHandleW(nullptr), L"Okno", client, kPopup));
        ::ShowWindow(window.handle(), SW_SHOWNORMAL);
        drainMessages();
    }
    LRESULT send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::SendMessageW(window.handle(), message, wParam, lParam);
    }
    void changeDpi(WORD dpi, const Rect& place)
    {
        RECT suggested{place.x, place.y, place.x + place.width, place.y + place.height};
        send(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
    }
    Rect screenRect() const
    {
        RECT rect{};
        ::GetWindowRect(window.handle(), &rect);
        return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    }

    TestWindow window;
};

TEST_F(WindowDesktopTest, TheSessionEndsOnlyWithoutAReasonToWait)
{
    window.setShutdownBlockReason(L"Instalace prave probiha.");
    open({200, 100});
    EXPECT_EQ(send(WM_QUERYENDSESSION, 0, 0), FALSE);
    window.setShutdownBlockReason({});
    EXPECT_EQ(send(WM_QUERYENDSESSION, 0, 0), TRUE);
}

TEST_F(WindowDesktopTest, ProgressWaitsForTheTaskbarButtonAndReturnsWithANewTaskbar)
{
    const UINT buttonCreated = ::RegisterWindowMessageW(L"TaskbarButtonCreated");
    window.setTaskbarProgress(TaskbarProgress::Running, 30);
    open({200, 100});
    EXPECT_TRUE(window.statuses.empty());
    send(buttonCreated, 0, 0);
    window.setTaskbarProgress(TaskbarProgress::Running, 130);
    window.setTaskbarProgress(TaskbarProgress::Running, 100);
    send(buttonCreated, 0, 0);
    window.setTaskbarProgress(TaskbarProgress::None);
    const std::vector<TaskbarStatus> expected{{TaskbarProgress::Running, 30},
                                              {TaskbarProgress::Running, 100},
                                              {TaskbarProgress::Running, 100},
                                              {TaskbarProgress::None, 0}};
    EXPECT_EQ(window.statuses, expected);
}

TEST_F(WindowDesktopTest, AttentionIsAskedForOnlyInTheBackground)
{
    window.requestAttention();
    open({200, 100});
    ::SetForegroundWindow(window.handle());
    drainMessages();
    window.requestAttention();
    EXPECT_EQ(window.flashes, 0);
    TestWindow other;
    ASSERT_TRUE(other.create(::GetModuleHandleW(nullptr), L"", {100, 100}, kPopup));
    ::ShowWindow(other.handle(), SW_SHOWNORMAL);
    ::SetForegroundWindow(other.handle());
    drainMessages();
    window.requestAttention();
    EXPECT_EQ(window.flashes, 1);
}

TEST_F(WindowDesktopTest, AWindowThatShrinksKeepsItsLayoutAtASmallerScale)
{
    const Rect work = Desktop::workArea();
    window.setShrinkToFit(true);
    open({work.width * 2, 100});
    EXPECT_EQ(window.dpi(), 48);
    EXPECT_EQ(screenRect().width, work.width);
    EXPECT_EQ(screenRect().height, 50);
    TooltipWindow tip;
    tip.show(window, {0, 0}, L"Zavrit", std::make_shared<StyleSheet>(buildStyleSheet(builtInSkin())));
    ASSERT_TRUE(tip.window());
    EXPECT_EQ(tip.window()->dpi(), 48);
}

TEST_F(WindowDesktopTest, TheScaleFollowsTheMonitorAsFarAsItFits)
{
    const Rect work = Desktop::workArea();
    window.setShrinkToFit(true);
    open({work.width / 2, 200});
    auto& button =
        window.root().addControl(std::make_unique<ThemedButton>(L"ok", Rect{40, 20, 100, 40}, L"OK"));
    changeDpi(144, {0, 0, work.width * 3 / 4, 300});
    EXPECT_EQ(window.dpi(), 144);
    EXPECT_EQ(screenRect(), (Rect{0, 0, work.width * 3 / 4, 300}));
    changeDpi(240, {50, 60, work.width * 5 / 4, 500});
    EXPECT_EQ(window.dpi(), 192);
    EXPECT_EQ(screenRect(), (Rect{work.x, 60, work.width, 400}));
    EXPECT_EQ(button.bounds(), (Rect{80, 40, 200, 80}));
    // A work area that did not change asks for nothing.
    send(WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    EXPECT_EQ(screenRect(), (Rect{work.x, 60, work.width, 400}));
    changeDpi(96, {50, 60, work.width * 96 / 240, 160});
    EXPECT_EQ(window.dpi(), 96);
    EXPECT_EQ(screenRect(), (Rect{50, 60, work.width / 2, 200}));
    EXPECT_EQ(button.bounds(), (Rect{40, 20, 100, 40}));
}

TEST_F(WindowDesktopTest, AWindowBelowItsMinimumGrowsWithTheWorkArea)
{
    open({200, 100});
    window.root().addControl(std::make_unique<ThemedButton>(L"ok", Rect{150, 80, 100, 40}, L"OK"));
    ASSERT_EQ(screenRect().width, 200);
    send(WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    EXPECT_EQ(sizeOf(screenRect()), (Size{250, 120}));
}

} // namespace
} // namespace vela
