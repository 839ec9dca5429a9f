// Real windows for tests, with the pointer and the keyboard of the desktop they stand on.
#pragma once

#include "vela/controls/window/window.h"
#include "vela/rect_win32.h"

#include <string>
#include <vector>

#include <windows.h>

namespace vela::testing {

// A window that only records what would leave the process.
class TestWindow : public Window {
public:
    TestWindow() { setQuitOnDestroy(false); }
    ~TestWindow() override { destroy(); }

    void writeDiagnostic(std::wstring_view line) override { lines.emplace_back(line); }

    std::vector<std::wstring> lines;
    std::vector<TaskbarStatus> statuses;
    int flashes = 0;
    int clips = 0;
    int destroyed = 0;

protected:
    void onDestroyed() override { ++destroyed; }
    void openScreenClip() override { ++clips; }
    void showTaskbarStatus(const TaskbarStatus& status) override { statuses.push_back(status); }
    void flashTaskbarButton() override { ++flashes; }
};

// Everything that waits in the queue, and the input that is still on its way into it.
inline void drainMessages(DWORD settleMilliseconds = 30)
{
    const ULONGLONG end = ::GetTickCount64() + settleMilliseconds;
    do {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT)
                return ::PostQuitMessage(static_cast<int>(message.wParam));
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    } while (::GetTickCount64() < end);
}

// Messages until the condition holds; false when it does not within that time.
template <typename Condition>
bool drainUntil(DWORD milliseconds, Condition&& holds)
{
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    while (!holds()) {
        if (::GetTickCount64() >= end)
            return false;
        drainMessages(20);
    }
    return true;
}

// Handles messages until `done` holds. The patience is for a machine with much else to do; a test that passes
// does not use it up.
template <typename Done>
bool pumpUntil(Done&& done, DWORD patienceMilliseconds = 20'000)
{
    const ULONGLONG end = ::GetTickCount64() + patienceMilliseconds;
    while (!done() && ::GetTickCount64() < end)
        drainMessages(5);
    return done();
}

struct Desktop {
    static Rect workArea()
    {
        RECT work{};
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        return toRect(work);
    }
    static Rect clipBox(HDC dc)
    {
        RECT box{};
        ::GetClipBox(dc, &box);
        return toRect(box);
    }
    static void movePointer(HWND window, Point client)
    {
        POINT at{client.x, client.y};
        ::ClientToScreen(window, &at);
        pointer({at.x, at.y}, 0);
    }
    // Screen pixels. Whatever moves the pointer meanwhile, a button given by the flags goes down or up at
    // that point.
    static void pointer(Point at, DWORD buttonFlags)
    {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dx = at.x * 65536 / ::GetSystemMetrics(SM_CXSCREEN) + 1;
        input.mi.dy = at.y * 65536 / ::GetSystemMetrics(SM_CYSCREEN) + 1;
        input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | buttonFlags;
        ::SendInput(1, &input, sizeof input);
    }
    static void button(DWORD flags)
    {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        ::SendInput(1, &input, sizeof input);
    }
    static void keyHalf(WORD code, bool down)
    {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = code;
        input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
        ::SendInput(1, &input, sizeof input);
    }
    static void key(WORD code)
    {
        keyHalf(code, true);
        keyHalf(code, false);
    }
    static void holdControl(bool down)
    {
        keyHalf(VK_CONTROL, down);
        drainMessages();
    }
};

} // namespace vela::testing
