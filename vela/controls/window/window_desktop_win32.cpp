// What a window tells the desktop around it: why the session must not end yet, how far its work is, and that
// it wants to be looked at.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/taskbar_list_win32.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// Sent when the taskbar has made the window's button, and again when it was restarted.
UINT taskbarButtonCreated() noexcept
{
    static const UINT message = ::RegisterWindowMessageW(L"TaskbarButtonCreated");
    return message;
}

} // namespace

void Window::setShutdownBlockReason(std::wstring reason)
{
    state_.shutdownBlockReason = std::move(reason);
    native_->blockShutdown();
}

void Window::setTaskbarProgress(TaskbarProgress state, std::int32_t percent)
{
    const TaskbarStatus status{state, std::clamp(percent, 0, 100)};
    if (std::exchange(state_.taskbarStatus, status) != status)
        native_->refreshTaskbar();
}

void Window::requestAttention()
{
    if (isAlive() && ::GetForegroundWindow() != state_.handle)
        flashTaskbarButton();
}

void Window::showTaskbarStatus(const TaskbarStatus& status) { native_->showTaskbarStatus(status); }

void Window::flashTaskbarButton()
{
    FLASHWINFO flash{sizeof flash, state_.handle, FLASHW_TRAY | FLASHW_TIMERNOFG, 0, 0};
    ::FlashWindowEx(&flash);
}

void Window::Native::blockShutdown() const noexcept
{
    if (!window_.isAlive())
        return;
    if (state_.shutdownBlockReason.empty())
        ::ShutdownBlockReasonDestroy(state_.handle);
    else
        ::ShutdownBlockReasonCreate(state_.handle, state_.shutdownBlockReason.c_str());
}

LRESULT Window::Native::onQueryEndSession(WPARAM wParam, LPARAM lParam) const
{
    return state_.shutdownBlockReason.empty() ? passOn(WM_QUERYENDSESSION, wParam, lParam) : FALSE;
}

// An elevated program hears nothing from the taskbar, which is not, unless it asks to.
void Window::Native::admitTaskbar() const noexcept
{
    ::ChangeWindowMessageFilterEx(state_.handle, taskbarButtonCreated(), MSGFLT_ALLOW, nullptr);
}

LRESULT Window::Native::onRegisteredMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != taskbarButtonCreated())
        return passOn(message, wParam, lParam);
    hasTaskbarButton_ = true;
    if (state_.taskbarStatus.state != TaskbarProgress::None)
        refreshTaskbar();
    return 0;
}

void Window::Native::refreshTaskbar()
{
    if (hasTaskbarButton_ && window_.isAlive())
        window_.showTaskbarStatus(state_.taskbarStatus);
}

void Window::Native::showTaskbarStatus(const TaskbarStatus& status)
{
    if (!taskbar_)
        taskbar_ = std::make_unique<TaskbarList>();
    taskbar_->show(state_.handle, status);
}

} // namespace vela
