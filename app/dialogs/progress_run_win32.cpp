#include "app/dialogs/progress_run.h"

#include "app/dialogs/progress_dialog.h"

#include "vela/worker_thread_win32.h"

#include <atomic>
#include <optional>

namespace setup {
namespace {

constexpr UINT_PTR kProgressTimer = 4101;
constexpr UINT kProgressPeriod = 180; // milliseconds

// What the two threads share. The worker writes the result, then sets the flag; whoever reads the flag set
// may read the result. The window's handle is only posted to.
struct HandOver {
    const SetupTask& task;
    HWND window = nullptr;
    SetupActionResult result = {};
    std::atomic<bool> done = false;
};

void work(HandOver& handOver)
{
    handOver.result = resultOf(handOver.task);
    handOver.done.store(true, std::memory_order_release);
    // So that the dialog ends now and not at its next tick.
    ::PostMessageW(handOver.window, WM_TIMER, kProgressTimer, 0);
}

// Ends the dialog when the worker has ended, and until then lets nothing close it.
vela::Window::MessageHook progressHook(ProgressDialog& dialog, const HandOver& handOver)
{
    return [&dialog, &handOver](HWND window, unsigned message, std::uintptr_t id, std::intptr_t,
                                std::intptr_t&) {
        if (message == WM_CLOSE)
            return !handOver.done.load(std::memory_order_acquire);
        if (message != WM_TIMER || id != kProgressTimer)
            return false;
        if (!handOver.done.load(std::memory_order_acquire)) {
            dialog.advance();
            return true;
        }
        ::KillTimer(window, kProgressTimer);
        dialog.endModal(1);
        return true;
    };
}

// A quit request ends the dialog's loop at once, but not the worker, nor may the window go dead meanwhile.
// The request is made again for the loop outside.
void waitForWorker(HANDLE worker)
{
    std::optional<int> quitCode;
    while (::MsgWaitForMultipleObjects(1, &worker, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                quitCode = static_cast<int>(message.wParam);
                continue;
            }
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    ::WaitForSingleObject(worker, INFINITE); // whatever ended the loop
    if (quitCode)
        ::PostQuitMessage(*quitCode);
}

} // namespace

SetupActionResult runWithProgress(DialogHost host, std::wstring_view title, std::wstring_view body,
                                  const SetupTask& task)
{
    HandOver handOver{task};
    ProgressDialog dialog(std::move(host), title, body);
    if (!dialog.open())
        return resultOf(task);
    handOver.window = dialog.handle();
    dialog.setMessageHook(progressHook(dialog, handOver));
    ::SetTimer(dialog.handle(), kProgressTimer, kProgressPeriod, nullptr);
    const vela::WorkerThread worker([&handOver] { work(handOver); });
    if (!worker) {
        dialog.destroy();
        return resultOf(task);
    }
    dialog.runModal();
    waitForWorker(worker.handle());
    return std::move(handOver.result);
}

} // namespace setup
