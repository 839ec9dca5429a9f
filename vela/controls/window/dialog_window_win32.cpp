#include "vela/controls/window/dialog_window.h"

#include <windows.h>

namespace vela {

namespace {

// Disables the owner of a dialog for as long as it lives; one that was disabled before stays so.
class DisabledOwner {
public:
    explicit DisabledOwner(HWND owner) noexcept
        : owner_(owner && ::IsWindow(owner) ? owner : nullptr),
          wasEnabled_(owner_ && ::IsWindowEnabled(owner_))
    {
        if (owner_)
            ::EnableWindow(owner_, FALSE);
    }
    ~DisabledOwner()
    {
        if (!wasEnabled_ || !::IsWindow(owner_))
            return;
        ::EnableWindow(owner_, TRUE);
        ::SetActiveWindow(owner_);
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

private:
    HWND owner_;
    bool wasEnabled_;
};

// Keys go to the dialog's own handling; the system's would take Tab, Enter and Escape away.
bool isOwnKey(const MSG& message, HWND dialog) noexcept
{
    return message.hwnd == dialog && message.message >= WM_KEYDOWN && message.message <= WM_UNICHAR;
}

} // namespace

DialogWindow::DialogWindow()
{
    // Or the end of one dialog would leave a quit request for the loop of the next.
    setQuitOnDestroy(false);
}

DialogWindow::~DialogWindow() { destroy(); }

int DialogWindow::runModal(HWND owner)
{
    const DisabledOwner disabled(owner ? owner : owner_);
    done_ = false;
    if (isAlive()) {
        ::ShowWindow(handle(), SW_SHOWNORMAL);
        layoutTree();
        ::UpdateWindow(handle());
        onShown();
    }
    runLoop();
    return result_;
}

void DialogWindow::runLoop()
{
    while (!done_ && isAlive()) {
        MSG message{};
        const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
        if (got == 0)
            ::PostQuitMessage(static_cast<int>(message.wParam));
        if (got <= 0)
            return;
        if (!isOwnKey(message, handle()) && ::IsDialogMessageW(handle(), &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

void DialogWindow::endModal(int result)
{
    result_ = result;
    done_ = true;
    destroy();
}

void DialogWindow::onDestroyed()
{
    done_ = true;
    if (result_ == 0)
        result_ = kModalClosed;
}

} // namespace vela
