// A frame of our own, dragged by each edge and corner with a real pointer.
#include "vela/controls/window/window.h"

#include "tests/support/test_window_win32.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Desktop;
using testing::pumpUntil;

// Without the thick frame Windows starts no drag, however the hit test answers.
constexpr WindowStyle kResizable{WS_POPUP | WS_SYSMENU | WS_THICKFRAME, 0};
constexpr Rect kPlace{300, 250, 400, 300};
constexpr Size kSmallest{200, 150};

class WindowEdgesTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        window.setCustomFrame(true);
        window.setResizeBorder(16);
        ASSERT_TRUE(window.create(::GetModuleHandleW(nullptr), L"Okno", sizeOf(kPlace), kResizable));
        window.root().addControl(
            std::make_unique<Control>(L"body", Rect{0, 0, kSmallest.width, kSmallest.height}));
        ::ShowWindow(window.handle(), SW_SHOWNORMAL);
        ::SetForegroundWindow(window.handle());
    }

    Rect screenRect() const
    {
        RECT rect{};
        ::GetWindowRect(window.handle(), &rect);
        return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    }
    // Pressed on the grip, and taken from there once the system's own loop follows the pointer.
    Rect draggedFrom(Point grip, Point by)
    {
        ::SetWindowPos(window.handle(), nullptr, kPlace.x, kPlace.y, kPlace.width, kPlace.height,
                       SWP_NOZORDER);
        target = {grip.x + by.x, grip.y + by.y};
        ended = false;
        Desktop::movePointer(window.handle(), grip);
        testing::drainMessages();
        Desktop::button(MOUSEEVENTF_LEFTDOWN);
        EXPECT_TRUE(pumpUntil([this] { return ended; }));
        return screenRect();
    }
    void watch(unsigned message)
    {
        ended = ended || message == WM_EXITSIZEMOVE;
        // At the window's next tick: when the loop is announced, it does not hold the mouse yet.
        if (message != WM_TIMER || !window.isInSizeMove())
            return;
        Desktop::movePointer(window.handle(), target);
        Desktop::button(MOUSEEVENTF_LEFTUP);
    }

    Point target;
    bool ended = false;
    testing::TestWindow window;
};

TEST_F(WindowEdgesTest, EachEdgeAndCornerFollowsThePointerAndStopsAtTheMinimum)
{
    window.setMessageHook([this](HWND, unsigned message, std::uintptr_t, std::intptr_t, std::intptr_t&) {
        watch(message);
        return false;
    });
    // -1, 0 and 1: the near edge, none and the far edge of an axis.
    for (const Point side : {Point{-1, 0}, {1, 0}, {0, -1}, {0, 1}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}}) {
        const auto grip = [side](std::int32_t inset) {
            const auto on = [inset](std::int32_t which, std::int32_t extent) {
                return which < 0 ? inset : which > 0 ? extent - 1 - inset : extent / 2;
            };
            return Point{on(side.x, kPlace.width), on(side.y, kPlace.height)};
        };
        const Rect larger = draggedFrom(grip(2), {40 * side.x, 30 * side.y});
        EXPECT_EQ(larger,
                  (Rect{kPlace.x - (side.x < 0 ? 40 : 0), kPlace.y - (side.y < 0 ? 30 : 0),
                        kPlace.width + (side.x != 0 ? 40 : 0), kPlace.height + (side.y != 0 ? 30 : 0)}))
            << side.x << ',' << side.y;
        EXPECT_EQ(sizeOf(window.root().bounds()), sizeOf(larger));
        // Far over the opposite edge: the window keeps its smallest size, and that edge its place. Pressed
        // where it was pressed before, it would be a double click.
        const Rect smallest = draggedFrom(grip(12), {-380 * side.x, -280 * side.y});
        // Wine lets the pointer pull a left or upper edge only up to the pixel before.
        const std::int32_t slackX = side.x < 0 ? 1 : 0;
        const std::int32_t slackY = side.y < 0 ? 1 : 0;
        const std::int32_t width = side.x != 0 ? kSmallest.width : kPlace.width;
        const std::int32_t height = side.y != 0 ? kSmallest.height : kPlace.height;
        EXPECT_GE(smallest.width, width);
        EXPECT_LE(smallest.width, width + slackX);
        EXPECT_GE(smallest.height, height);
        EXPECT_LE(smallest.height, height + slackY);
        EXPECT_EQ(smallest.x, side.x < 0 ? kPlace.x + kPlace.width - smallest.width : kPlace.x);
        EXPECT_EQ(smallest.y, side.y < 0 ? kPlace.y + kPlace.height - smallest.height : kPlace.y);
    }
}

} // namespace
} // namespace vela
