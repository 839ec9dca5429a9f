// What a window does by itself, from one tick of its timer to the next.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/cursor_win32.h"
#include "vela/controls/window/tooltip_window_win32.h"
#include "vela/render/gdi/performance_win32.h"

#include <utility>

namespace vela {

namespace {

void tickAnimations(Control& control, std::uint32_t elapsed)
{
    if (!control.isVisible())
        return;
    control.animationTick(elapsed);
    for (Control* child : control.children())
        tickAnimations(*child, elapsed);
}

} // namespace

LRESULT Window::Native::onTimer(WPARAM wParam, LPARAM lParam)
{
    if (wParam != kWindowTimer)
        return passOn(WM_TIMER, wParam, lParam);
    const std::uint64_t now = ::GetTickCount64();
    const auto elapsed = static_cast<std::uint32_t>(now - lastTick_);
    lastTick_ = now;
    if (state_.root.wantsAnimation())
        tickAnimations(state_.root, elapsed);
    moveLights(elapsed);
    updateTooltip(now);
    return 0;
}

void Window::Native::moveLights(std::uint32_t elapsed)
{
    const HWND handle = state_.handle;
    if (!::IsWindowVisible(handle) || ::IsIconic(handle) || !showsMovingLight(state_.root))
        return;
    if (lights_.tick(elapsed, performanceProfile()))
        repaintMovingLights(state_.root);
}

// Called on every tick: a tooltip appears when it is due and goes when its control does.
void Window::Native::updateTooltip(std::uint64_t now)
{
    const Control* const due = state_.tooltipTiming.due(now, state_.tooltipDelay);
    if (std::exchange(tooltipFor_, due) == due)
        return;
    if (!due) {
        tooltip_.reset();
        return;
    }
    if (!tooltip_)
        tooltip_ = std::make_unique<TooltipWindow>();
    tooltip_->show(window_, cursorOnScreen(), due->hint(), state_.styles);
}

void Window::Native::dismissTooltip()
{
    state_.tooltipTiming.dismiss();
    updateTooltip(::GetTickCount64());
}

} // namespace vela
