// A task behind the progress dialog: however either of them ends, the task's result comes back, once the task
// has ended. The tasks here run on the worker and see the dialog as another program would.
#include "app/dialogs/progress_run.h"

#include "tests/app/dialogs/dialog_testing_win32.h"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <set>

namespace setup {
namespace {

constexpr const wchar_t* kTitle = L"Zkousim - Tamber - v" TAMBER_VERSION;

HWND findDialog() { return ::FindWindowW(L"VelaDesignWindow", kTitle); }

HWND waitForDialog()
{
    for (int round = 0; round < 500; ++round) {
        const HWND dialog = findDialog();
        if (dialog && ::IsWindowVisible(dialog))
            return dialog;
        ::Sleep(10);
    }
    return nullptr;
}

SetupActionResult finished(std::uint32_t exitCode)
{
    SetupActionResult result;
    result.success = exitCode == 0;
    result.exitCode = exitCode;
    return result;
}

SetupActionResult run(const SetupTask& task)
{
    return runWithProgress(test::host(), L"Zkousim", L"Telo.", task);
}

TEST(ProgressRunTest, ReturnsWhatTheTaskReturned)
{
    const DWORD uiThread = ::GetCurrentThreadId();
    DWORD taskThread = uiThread;
    const SetupActionResult result = run([&] {
        taskThread = ::GetCurrentThreadId();
        return waitForDialog() ? finished(7) : finished(0);
    });
    EXPECT_EQ(result.exitCode, 7U);
    EXPECT_NE(taskThread, uiThread);
    EXPECT_FALSE(findDialog());
}

TEST(ProgressRunTest, ATaskMayEndBeforeTheDialogIsUp)
{
    for (int i = 0; i < 50; ++i)
        EXPECT_TRUE(run([] { return finished(0); }).success);
}

TEST(ProgressRunTest, WhateverTheTaskThrowsBecomesAResult)
{
    const SetupActionResult result = run([]() -> SetupActionResult {
        waitForDialog();
        throw std::bad_alloc();
    });
    EXPECT_FALSE(result.success);
    EXPECT_EQ(result.phase, L"setup");
    EXPECT_EQ(result.logPath, L"");
    EXPECT_EQ(result.message, L"Setup narazil na neocekavanou chybu. Zkus ho prosim spustit znovu.");
    EXPECT_THROW(throw 1, int) << "unwinding still works on this thread";
}

TEST(ProgressRunTest, NothingClosesTheDialogBeforeTheTaskHasEnded)
{
    bool survived = false;
    const SetupActionResult result = run([&] {
        const HWND dialog = waitForDialog();
        ::SendMessageW(dialog, WM_CLOSE, 0, 0);
        ::SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
        for (const WPARAM key : {VK_ESCAPE, VK_RETURN})
            ::SendMessageW(dialog, WM_KEYDOWN, key, 0);
        // Alt+F4, as it arrives.
        ::SendMessageW(dialog, WM_SYSKEYDOWN, VK_F4, 1 << 29);
        ::Sleep(50);
        survived = ::IsWindow(dialog) && ::IsWindowVisible(dialog);
        return finished(0);
    });
    EXPECT_TRUE(result.success);
    EXPECT_TRUE(survived);
}

TEST(ProgressRunTest, TheSessionDoesNotEndMeanwhile)
{
    LRESULT answer = TRUE;
    run([&] {
        answer = ::SendMessageW(waitForDialog(), WM_QUERYENDSESSION, 0, 0);
        return finished(0);
    });
    EXPECT_EQ(answer, FALSE);
}

TEST(ProgressRunTest, AQuitRequestIsKeptAndTheResultAwaited)
{
    std::atomic<bool> answered = false;
    const DWORD uiThread = ::GetCurrentThreadId();
    const SetupActionResult result = run([&] {
        const HWND dialog = waitForDialog();
        ::PostThreadMessageW(uiThread, WM_QUIT, 9, 0);
        ::Sleep(300);
        // The loop of the dialog is over; the window is as live as before.
        DWORD_PTR ignored = 0;
        answered = ::SendMessageTimeoutW(dialog, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, &ignored) != 0;
        return finished(3);
    });
    EXPECT_EQ(result.exitCode, 3U);
    EXPECT_TRUE(answered);
    EXPECT_FALSE(findDialog());
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 9U);
}

// Where the bar's fill ends on the screen, as its colour along the bar tells.
int fillEnd(HWND dialog)
{
    const HDC screen = ::GetDC(dialog);
    constexpr int kMiddle = 166 + 14;
    const COLORREF filled = ::GetPixel(screen, 80, kMiddle);
    int end = 80;
    while (end < 566 && ::GetPixel(screen, end, kMiddle) == filled)
        end += 3;
    ::ReleaseDC(dialog, screen);
    return end;
}

TEST(ProgressRunTest, TheDialogStaysLive)
{
    int late = 0;
    std::set<int> ends;
    RECT moved{};
    run([&] {
        const HWND dialog = waitForDialog();
        for (int round = 0; round < 100; ++round) {
            const ULONGLONG asked = ::GetTickCount64();
            ::SendMessageW(dialog, WM_NULL, 0, 0);
            late += ::GetTickCount64() - asked > 50;
            if (round % 5 == 0)
                ends.insert(fillEnd(dialog));
            ::Sleep(10);
        }
        ::SetWindowPos(dialog, nullptr, 10, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ::GetWindowRect(dialog, &moved);
        return finished(0);
    });
    EXPECT_LE(late, 5) << "of 100 questions";
    EXPECT_GE(ends.size(), 3U) << "the bar fills";
    EXPECT_EQ(moved.left, 10);
    EXPECT_EQ(moved.top, 20);
}

TEST(ProgressRunTest, WithoutAWindowTheTaskRunsHere)
{
    const DWORD uiThread = ::GetCurrentThreadId();
    DWORD taskThread = 0;
    DialogHost host = test::host();
    // A window that is gone cannot own another: no window comes to be.
    const HWND gone = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ::DestroyWindow(gone);
    host.owner = gone;
    const SetupActionResult result = runWithProgress(host, L"Zkousim", L"Telo.", [&] {
        taskThread = ::GetCurrentThreadId();
        return finished(5);
    });
    EXPECT_EQ(result.exitCode, 5U);
    EXPECT_EQ(taskThread, uiThread);
}

} // namespace
} // namespace setup
