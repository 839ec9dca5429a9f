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

class WindowTest : public ::testing::Test {
protected:
    void open(Size client = {400, 300}, WindowStyle style = kPopup)
    {
        ASSERT_TRUE(window.create(::GetModuleHandleW(nullptr), L"Okno", client, style));
        ::ShowWindow(window.handle(), SW_SHOWNORMAL);
        ::SetForegroundWindow(window.handle());
        drainMessages();
    }
    Rect screenRect() const
    {
        RECT rect{};
        ::GetWindowRect(window.handle(), &rect);
        return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    }
    LRESULT send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::SendMessageW(window.handle(), message, wParam, lParam);
    }
    ThemedButton& addButton(Rect bounds, Anchors anchors = Anchors::Left | Anchors::Top)
    {
        auto& button = window.root().addControl(std::make_unique<ThemedButton>(L"ok", bounds, L"OK"));
        button.setAnchors(anchors);
        button.setClickHandler([this](CommandEvent&) { ++clicks; });
        return button;
    }

    TestWindow window;
    int clicks = 0;
};

TEST_F(WindowTest, OpensCentredInTheWorkAreaAndNeverLargerThanIt)
{
    window.setCustomFrame(true);
    open();
    EXPECT_EQ(window.clientRect(), (Rect{0, 0, 400, 300}));
    EXPECT_EQ(window.root().bounds(), (Rect{0, 0, 400, 300}));
    const Rect work = Desktop::workArea();
    const Rect place = screenRect();
    EXPECT_NEAR(place.x - work.x, work.x + work.width - place.x - place.width, 1);

    TestWindow wide;
    wide.setCustomFrame(true);
    ASSERT_TRUE(wide.create(::GetModuleHandleW(nullptr), L"", {work.width + 500, 100}, kPopup));
    RECT rect{};
    ::GetWindowRect(wide.handle(), &rect);
    EXPECT_EQ(rect.left, work.x);
    EXPECT_EQ(rect.right - rect.left, work.width);
}

TEST_F(WindowTest, AStandardFrameGoesAroundTheClientArea)
{
    open({400, 300}, {WS_OVERLAPPEDWINDOW, 0});
    EXPECT_EQ(window.clientRect(), (Rect{0, 0, 400, 300}));
    EXPECT_GT(screenRect().height, 300);
    EXPECT_EQ(send(WM_NCHITTEST, 0, MAKELPARAM(screenRect().x + 200, screenRect().y + 200)), HTCLIENT);
}

TEST_F(WindowTest, TheResizeBandAnswersForACustomFrameThatIsNotMaximised)
{
    window.setCustomFrame(true);
    window.setResizeBorder(4);
    open();
    const Rect at = screenRect();
    const auto hit = [&](int x, int y) { return send(WM_NCHITTEST, 0, MAKELPARAM(at.x + x, at.y + y)); };
    EXPECT_EQ(hit(2, 2), HTTOPLEFT);
    EXPECT_EQ(hit(10, 10), HTCLIENT);
    EXPECT_EQ(hit(398, 150), HTRIGHT);
    EXPECT_EQ(hit(200, 299), HTBOTTOM);
    EXPECT_EQ(hit(-5, 150), HTCLIENT);
    ::ShowWindow(window.handle(), SW_MAXIMIZE);
    EXPECT_TRUE(window.isMaximised());
    EXPECT_EQ(screenRect(), Desktop::workArea());
    EXPECT_EQ(send(WM_NCHITTEST, 0, MAKELPARAM(1, 1)), HTCLIENT);
    ::ShowWindow(window.handle(), SW_RESTORE);
    EXPECT_FALSE(window.isMaximised());
    EXPECT_EQ(screenRect(), at);
}

TEST_F(WindowTest, SizingStopsAtTheTreesMinimum)
{
    window.setCustomFrame(true);
    open();
    addButton({50, 50, 150, 100});
    ASSERT_EQ(window.minimumTrackSize(), (Size{200, 150}));
    RECT proposed{350, 100, 400, 400};
    EXPECT_EQ(send(WM_SIZING, WMSZ_LEFT, reinterpret_cast<LPARAM>(&proposed)), 1);
    EXPECT_EQ(proposed.left, 200);
    EXPECT_EQ(proposed.right, 400);
    proposed = {100, 100, 500, 110};
    send(WM_SIZING, WMSZ_BOTTOM, reinterpret_cast<LPARAM>(&proposed));
    EXPECT_EQ(proposed.bottom, 250);

    MINMAXINFO info{};
    info.ptMaxTrackSize = {10, 10};
    send(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 200);
    EXPECT_EQ(info.ptMaxSize.x, Desktop::workArea().width);
    EXPECT_GE(info.ptMaxTrackSize.x, Desktop::workArea().width);
}

TEST_F(WindowTest, DiagnosticsAreWrittenOnlyWhileTheyAreOn)
{
    window.setCustomFrame(true);
    window.setDiagnostics(false);
    open();
    RECT proposed{0, 0, 400, 300};
    send(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&proposed));
    EXPECT_TRUE(window.lines.empty());
    window.setDiagnostics(true);
    send(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&proposed));
    const Rect at = screenRect();
    send(WM_NCHITTEST, 0, MAKELPARAM(at.x + 50, at.y + 50));
    ASSERT_EQ(window.lines.size(), 2u);
    EXPECT_EQ(
        window.lines[0].rfind(L"[Vela diagnostic] WM_SIZING edge=2 rectBefore={x=0,y=0,w=400,h=300}", 0), 0u);
    EXPECT_EQ(window.lines[1].rfind(L"[Vela diagnostic] WM_NCHITTEST hit=1 ", 0), 0u);
}

TEST_F(WindowTest, ResizingLaysTheTreeOut)
{
    window.setCustomFrame(true);
    open();
    const ThemedButton& button = addButton({300, 250, 80, 30}, Anchors::Right | Anchors::Bottom);
    ::SetWindowPos(window.handle(), nullptr, 0, 0, 500, 380, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(button.bounds(), (Rect{400, 330, 80, 30}));
    ::SetWindowPos(window.handle(), nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(button.bounds(), (Rect{300, 250, 80, 30}));
}

TEST_F(WindowTest, ANewDpiRescalesTheTreeAndTakesTheSuggestedPlace)
{
    window.setCustomFrame(true);
    open();
    const ThemedButton& button = addButton({300, 250, 80, 30}, Anchors::Right | Anchors::Bottom);
    window.applyStyles(std::make_shared<StyleSheet>(buildStyleSheet(builtInSkin())));
    RECT suggested{10, 20, 610, 470};
    send(WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(window.dpi(), 144);
    EXPECT_EQ(screenRect(), (Rect{10, 20, 600, 450}));
    EXPECT_EQ(button.bounds(), (Rect{450, 375, 120, 45}));
    suggested = {10, 20, 410, 320};
    send(WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(button.bounds(), (Rect{300, 250, 80, 30}));
}

TEST_F(WindowTest, AButtonIsClickedWithARealPointer)
{
    window.setCustomFrame(true);
    open();
    const ThemedButton& button = addButton({100, 100, 100, 40});
    Desktop::movePointer(window.handle(), {150, 120});
    drainMessages();
    EXPECT_TRUE(button.isHot());
    Desktop::button(MOUSEEVENTF_LEFTDOWN);
    drainMessages();
    EXPECT_TRUE(button.isPressed());
    EXPECT_EQ(::GetCapture(), window.handle());
    Desktop::movePointer(window.handle(), {300, 220});
    drainMessages();
    EXPECT_FALSE(button.isPressed());
    Desktop::movePointer(window.handle(), {150, 120});
    Desktop::button(MOUSEEVENTF_LEFTUP);
    drainMessages();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(::GetCapture(), nullptr);

    // The mouse is taken away in the middle of a press.
    Desktop::button(MOUSEEVENTF_LEFTDOWN);
    drainMessages();
    ::ReleaseCapture();
    drainMessages();
    EXPECT_FALSE(button.isPressed());
    Desktop::button(MOUSEEVENTF_LEFTUP);
    drainMessages();
    EXPECT_EQ(clicks, 1);
}

TEST_F(WindowTest, KeysReachTheFocusedControl)
{
    window.setCustomFrame(true);
    open();
    addButton({100, 100, 100, 40});
    Desktop::key(VK_TAB);
    drainMessages();
    ASSERT_NE(window.focusedControl(), nullptr);
    EXPECT_TRUE(window.showsFocus());
    Desktop::key(VK_SPACE);
    drainMessages();
    EXPECT_EQ(clicks, 1);
}

struct Painted : Control {
    using Control::Control;
    void paint(HDC dc, Point) override
    {
        clip = Desktop::clipBox(dc);
        ++times;
    }

    Rect clip;
    int times = 0;
};

// It is painted while it is hidden; what changes from then on is painted once more, and only that.
TEST_F(WindowTest, AWindowAppearsWithItsPicture)
{
    window.setCustomFrame(true);
    window.setStyleSource([] { return std::make_shared<StyleSheet>(buildStyleSheet(builtInSkin())); });
    ASSERT_TRUE(window.create(::GetModuleHandleW(nullptr), L"Okno", {400, 300}, kPopup));
    const auto& painted = window.root().addControl(std::make_unique<Painted>(L"p", Rect{0, 0, 400, 300}));
    send(WM_SHOWWINDOW, TRUE, 0);
    EXPECT_EQ(painted.times, 1);
    EXPECT_EQ(painted.clip, (Rect{0, 0, 400, 300}));
    ::ShowWindow(window.handle(), SW_SHOWNOACTIVATE);
    const int before = painted.times;
    window.invalidateClient({20, 30, 40, 50}, InvalidationReason::State);
    window.invalidateClient({50, 40, 20, 50}, InvalidationReason::State);
    ::UpdateWindow(window.handle());
    EXPECT_EQ(painted.times, before + 1);
    EXPECT_EQ(painted.clip, (Rect{20, 30, 50, 60}));
    send(WM_SYSCOLORCHANGE, 0, 0);
    ::UpdateWindow(window.handle());
    EXPECT_EQ(painted.clip, (Rect{0, 0, 400, 300}));
}

TEST_F(WindowTest, OnlyTheDamageIsPainted)
{
    window.setCustomFrame(true);
    open();
    const auto& painted = window.root().addControl(std::make_unique<Painted>(L"p", Rect{0, 0, 400, 300}));
    ::InvalidateRect(window.handle(), nullptr, FALSE);
    ::UpdateWindow(window.handle());
    EXPECT_EQ(painted.clip, (Rect{0, 0, 400, 300}));
    window.invalidateClient({20, 30, 40, 50}, InvalidationReason::State);
    ::UpdateWindow(window.handle());
    EXPECT_EQ(painted.clip, (Rect{20, 30, 40, 50}));
}

TEST_F(WindowTest, TheHookSeesEveryMessageFirst)
{
    window.setMessageHook(
        [](HWND, unsigned message, std::uintptr_t wParam, std::intptr_t, std::intptr_t& result) {
            result = static_cast<std::intptr_t>(wParam) + 1;
            return message == WM_APP;
        });
    open();
    EXPECT_EQ(send(WM_APP, 41, 0), 42);
    EXPECT_EQ(send(WM_APP + 1, 41, 0), 0);
}

TEST_F(WindowTest, ADeactivatedWindowClosesOnlyWhenAskedTo)
{
    window.setCustomFrame(true);
    open();
    const ThemedButton& button = addButton({0, 0, 100, 40});
    send(WM_MOUSEMOVE, 0, MAKELPARAM(10, 10));
    EXPECT_TRUE(button.isHot());
    send(WM_ACTIVATEAPP, FALSE, 0);
    drainMessages();
    EXPECT_TRUE(window.isAlive());
    EXPECT_FALSE(button.isHot());
    window.setCloseOnDeactivate(true);
    send(WM_ACTIVATE, WA_ACTIVE, 0);
    drainMessages();
    EXPECT_TRUE(window.isAlive());
    send(WM_ACTIVATE, WA_INACTIVE, 0);
    drainMessages();
    EXPECT_FALSE(window.isAlive());
    EXPECT_EQ(window.handle(), nullptr);
    EXPECT_EQ(window.destroyed, 1);
}

TEST_F(WindowTest, QuitIsPostedOnlyByAWindowThatQuits)
{
    open();
    MSG message{};
    window.destroy();
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    TestWindow last;
    last.setQuitOnDestroy(true);
    ASSERT_TRUE(last.create(::GetModuleHandleW(nullptr), L"", {100, 100}, kPopup));
    last.destroy();
    EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(WindowTest, PrintScreenIsAnsweredOncePerPress)
{
    open();
    send(WM_KEYUP, VK_SNAPSHOT, 0);
    EXPECT_EQ(window.clips, 1);
    send(WM_KEYDOWN, VK_SNAPSHOT, 0);
    send(WM_KEYDOWN, VK_SNAPSHOT, 1 << 30);
    send(WM_KEYUP, VK_SNAPSHOT, 0);
    EXPECT_EQ(window.clips, 2);
    Desktop::holdControl(true);
    send(WM_KEYDOWN, VK_SNAPSHOT, 0);
    send(WM_KEYUP, VK_SNAPSHOT, 0);
    Desktop::holdControl(false);
    EXPECT_EQ(window.clips, 2);
    // The modifier may be let go before the key.
    Desktop::holdControl(true);
    send(WM_KEYDOWN, VK_SNAPSHOT, 0);
    Desktop::holdControl(false);
    send(WM_KEYUP, VK_SNAPSHOT, 0);
    EXPECT_EQ(window.clips, 2);
    // A press with Alt says nothing about the next one.
    send(WM_SYSKEYDOWN, VK_SNAPSHOT, 0);
    send(WM_SYSKEYUP, VK_SNAPSHOT, 0);
    send(WM_KEYUP, VK_SNAPSHOT, 0);
    EXPECT_EQ(window.clips, 3);
}

TEST_F(WindowTest, F12SwitchesTheOverlayBeforeAnyControlSeesTheKey)
{
    open();
    EXPECT_EQ(send(WM_KEYDOWN, VK_F12, 0), 0);
    EXPECT_TRUE(window.debugOverlay().on);
    send(WM_KEYDOWN, VK_F12, 1 << 30);
    EXPECT_TRUE(window.debugOverlay().on);
    send(WM_KEYUP, VK_F12, 0);
    send(WM_SYSKEYDOWN, VK_F12, 0);
    EXPECT_FALSE(window.debugOverlay().on);
}

TEST_F(WindowTest, ALightDarkChangeAsksForTheStylesAgain)
{
    int asked = 0;
    window.setStyleSource([&asked] {
        ++asked;
        return std::make_shared<const StyleSheet>(buildStyleSheet(builtInSkin()));
    });
    open();
    EXPECT_EQ(asked, 1);
    send(WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"ImmersiveColorSet"));
    EXPECT_EQ(asked, 2);
    send(WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"Environment"));
    EXPECT_EQ(asked, 2);
    send(WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0);
    EXPECT_EQ(asked, 3);
}

// Letters on the screen are smoothed as the settings were when they were drawn.
TEST_F(WindowTest, AChangeOfSettingsOrMonitorsPaintsTheWindowAgain)
{
    open();
    for (const UINT message : {WM_SETTINGCHANGE, WM_DISPLAYCHANGE}) {
        drainMessages();
        ::ValidateRect(window.handle(), nullptr);
        send(message, message == WM_SETTINGCHANGE ? SPI_SETFONTSMOOTHINGCONTRAST : 32, 0);
        RECT damaged{};
        EXPECT_TRUE(::GetUpdateRect(window.handle(), &damaged, FALSE));
        EXPECT_EQ(damaged.right, window.clientRect().width);
    }
}

TEST_F(WindowTest, TheTitleBarsCommandsAreCarriedOut)
{
    window.setCustomFrame(true);
    open();
    EXPECT_FALSE(window.performChromeAction(L"header-action-1"));
    EXPECT_TRUE(window.performChromeAction(L"maximize"));
    drainMessages();
    EXPECT_TRUE(::IsZoomed(window.handle()));
    window.performChromeAction(L"restore");
    drainMessages();
    EXPECT_FALSE(::IsZoomed(window.handle()));
    window.performChromeAction(L"close");
    drainMessages();
    EXPECT_FALSE(window.isAlive());
    EXPECT_FALSE(window.performChromeAction(L"close"));
}

TEST_F(WindowTest, ATooltipShowsAfterTheDelayAndGoesWithAKey)
{
    const auto tooltips = [this] {
        int count = 0;
        for (HWND at = nullptr; (at = ::FindWindowExW(nullptr, at, L"VelaDesignWindow", L"")) != nullptr;)
            count += at != window.handle() && ::IsWindowVisible(at) &&
                     ::GetWindow(at, GW_OWNER) == window.handle();
        return count;
    };
    window.setCustomFrame(true);
    window.setTooltipDelay(1);
    open();
    window.applyStyles(std::make_shared<StyleSheet>(buildStyleSheet(builtInSkin())));
    addButton({0, 0, 200, 100}).setHint(L"Otevre systemovy vyber instalacni slozky.");
    // As when the window opens under a pointer that rests: it is told where that is.
    POINT pointer{};
    ::GetCursorPos(&pointer);
    ::SetWindowPos(window.handle(), nullptr, pointer.x - 40, pointer.y - 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    send(WM_MOUSEMOVE, 0, MAKELPARAM(40, 40));
    drainMessages(300);
    EXPECT_EQ(tooltips(), 0);
    Desktop::movePointer(window.handle(), {50, 50});
    drainMessages(300);
    EXPECT_EQ(tooltips(), 1);
    EXPECT_EQ(::GetForegroundWindow(), window.handle());
    send(WM_KEYDOWN, VK_F5, 0);
    EXPECT_EQ(tooltips(), 0);
    drainMessages(300);
    EXPECT_EQ(tooltips(), 0);
}

} // namespace
} // namespace vela
