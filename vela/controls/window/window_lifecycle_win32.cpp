// A window's life: from its creation to its end, and what the system tells it meanwhile.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/cursor_win32.h"
#include "vela/controls/system/taskbar_list_win32.h"
#include "vela/controls/window/tooltip_window_win32.h"
#include "vela/render/gdi/performance_win32.h"
#include "vela/render/paint/paint.h"

#include <cwchar>
#include <utility>

namespace vela {

Window::Native::Native(Window& window, WindowState& state) noexcept : window_(window), state_(state) {}

Window::Native::~Native() = default;

LRESULT Window::Native::onCreate()
{
    allDamaged_ = true;
    monitorDpi_ = static_cast<std::int32_t>(::GetDpiForWindow(state_.handle));
    const std::int32_t before = std::exchange(state_.dpi, scaleFor(workArea(), monitorDpi_, frameExtra()));
    state_.root.rescale(state_.dpi);
    // Looks that were given before are those of another scale.
    if (state_.dpi != before)
        window_.applyStyles(state_.styles);
    blockShutdown();
    admitTaskbar();
    lastTick_ = ::GetTickCount64();
    pointerAtStart_ = cursorOnScreen();
    lights_.setProfile(performanceProfile());
    ::SetTimer(state_.handle, kWindowTimer, kWindowTimerPeriod, nullptr);
    window_.onCreated();
    return 0;
}

LRESULT Window::Native::onDestroy()
{
    window_.onDestroyed();
    ::KillTimer(state_.handle, kWindowTimer);
    clearHover();
    state_.input.captureLost();
    state_.input.setWindowFocused(false);
    backBuffer_.reset();
    smallIcon_.reset();
    largeIcon_.reset();
    taskbar_.reset();
    hasTaskbarButton_ = false;
    if (state_.quitOnDestroy)
        ::PostQuitMessage(0);
    return 0;
}

void Window::Native::deactivate()
{
    if (!state_.closeOnDeactivate || !window_.isAlive())
        return;
    clearHover();
    ::PostMessageW(state_.handle, WM_CLOSE, 0, 0);
}

LRESULT Window::Native::onActivate(WPARAM wParam, LPARAM lParam)
{
    if (LOWORD(wParam) == WA_INACTIVE)
        deactivate();
    return passOn(WM_ACTIVATE, wParam, lParam);
}

LRESULT Window::Native::onActivateApp(WPARAM wParam, LPARAM lParam)
{
    if (!wParam) {
        deactivate();
        clearHover();
    }
    return passOn(WM_ACTIVATEAPP, wParam, lParam);
}

LRESULT Window::Native::onFocus(UINT message, WPARAM wParam, LPARAM lParam)
{
    state_.input.setWindowFocused(message == WM_SETFOCUS);
    return passOn(message, wParam, lParam);
}

// A change between light and dark arrives as a setting of that name; every other program's window hears of it
// through the default processing too.
LRESULT Window::Native::onSettingChange(WPARAM wParam, LPARAM lParam)
{
    repaintText();
    if (wParam == SPI_SETWORKAREA) {
        refreshMetrics();
        return 0;
    }
    const auto* const section = reinterpret_cast<const wchar_t*>(lParam);
    if (wParam == SPI_SETHIGHCONTRAST || (section && std::wcscmp(section, L"ImmersiveColorSet") == 0))
        restyle();
    return passOn(WM_SETTINGCHANGE, wParam, lParam);
}

LRESULT Window::Native::onDisplayChange(WPARAM wParam, LPARAM lParam)
{
    repaintText();
    return passOn(WM_DISPLAYCHANGE, wParam, lParam);
}

// Smoothing is set up under several names, and by programs that give none.
void Window::Native::repaintText()
{
    textSettingsChanged();
    invalidateAll();
}

LRESULT Window::Native::onSystemLook(UINT message, WPARAM wParam, LPARAM lParam)
{
    restyle();
    return passOn(message, wParam, lParam);
}

void Window::Native::restyle()
{
    if (state_.styleSource)
        window_.applyStyles(state_.styleSource());
}

} // namespace vela
