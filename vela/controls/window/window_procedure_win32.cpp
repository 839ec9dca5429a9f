// The messages of a window's life: from its creation to its end, and what the system tells it meanwhile.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/window/taskbar_list_win32.h"
#include "vela/controls/window/tooltip_window_win32.h"
#include "vela/render/gdi/performance_win32.h"

#include <cwchar>
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

Window::Native::Native(Window& window, WindowState& state) noexcept : window_(window), state_(state) {}

Window::Native::~Native() = default;

bool Window::Native::registerClass(HINSTANCE instance) noexcept
{
    WNDCLASSEXW record{};
    record.cbSize = sizeof record;
    record.lpfnWndProc = &Native::procedure;
    record.hInstance = instance;
    record.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    record.hIcon = ::LoadIconW(nullptr, IDI_APPLICATION);
    record.hIconSm = record.hIcon;
    record.lpszClassName = kWindowClass;
    return ::RegisterClassExW(&record) || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

LRESULT CALLBACK Window::Native::procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_NCCREATE) {
        const auto* const creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        auto* const created = static_cast<Native*>(creation->lpCreateParams);
        created->state_.handle = handle;
        ::SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* const native = reinterpret_cast<Native*>(::GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (!native)
        return ::DefWindowProcW(handle, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
        native->state_.handle = nullptr;
        return ::DefWindowProcW(handle, message, wParam, lParam);
    }
    LRESULT result = 0;
    // A copy: the hook may replace itself.
    const MessageHook hook = native->state_.messageHook;
    std::intptr_t answer = 0;
    if (hook && hook(handle, message, wParam, lParam, answer))
        result = answer;
    else
        result = native->handle(message, wParam, lParam);
    return result;
}

LRESULT Window::Native::passOn(UINT message, WPARAM wParam, LPARAM lParam) const noexcept
{
    return ::DefWindowProcW(state_.handle, message, wParam, lParam);
}

LRESULT Window::Native::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE: return onCreate();
    case WM_DESTROY: return onDestroy();
    case WM_MOVE: return onMove();
    case WM_SIZE: return onSize(wParam);
    case WM_ACTIVATE: return onActivate(wParam, lParam);
    case WM_ACTIVATEAPP: return onActivateApp(wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS: return onFocus(message, wParam, lParam);
    case WM_SETTINGCHANGE: return onSettingChange(wParam, lParam);
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED: return onSystemLook(message, wParam, lParam);
    case WM_DPICHANGED: return onDpiChanged(wParam, *reinterpret_cast<const RECT*>(lParam));
    case WM_QUERYENDSESSION: return onQueryEndSession(wParam, lParam);
    case WM_SHOWWINDOW: return onShowWindow(wParam, lParam);
    case WM_PAINT: return onPaint();
    case WM_PRINTCLIENT: return onPrintClient(reinterpret_cast<HDC>(wParam));
    case WM_ERASEBKGND: return 1;
    case WM_GETMINMAXINFO: return onMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam));
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
    case WM_NCACTIVATE: return onFrameMessage(message, wParam, lParam);
    case WM_NCHITTEST: return onNcHitTest(lParam);
    case WM_NCLBUTTONDBLCLK: return onNcDoubleClick(wParam, lParam);
    case WM_SIZING: return onSizing(wParam, *reinterpret_cast<RECT*>(lParam));
    case WM_ENTERSIZEMOVE: return onSizeMove(true);
    case WM_EXITSIZEMOVE: return onSizeMove(false);
    case WM_TIMER: return onTimer(wParam, lParam);
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: return onKeyDown(message, wParam, lParam);
    case WM_KEYUP:
    case WM_SYSKEYUP: return onKeyUp(message, wParam, lParam);
    case WM_CHAR: return onCharacter(wParam);
    case WM_IME_STARTCOMPOSITION:
    case WM_IME_COMPOSITION: return onImeComposition(message, wParam, lParam);
    case WM_MOUSEMOVE: return onMouseMove(lParam);
    case WM_MOUSELEAVE: return onMouseLeave();
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    // The press only takes the tooltip away; what it asks for comes as WM_CONTEXTMENU.
    case WM_RBUTTONDOWN: return onMouseButton(message, lParam);
    case WM_MOUSEWHEEL: return onMouseWheel(wParam, lParam);
    case WM_CONTEXTMENU: return onContextMenu(wParam, lParam);
    case WM_CAPTURECHANGED: return onCaptureChanged(lParam);
    case WM_SETCURSOR: return onSetCursor(wParam, lParam);
    default: return onRegisteredMessage(message, wParam, lParam);
    }
}

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
    POINT pointer{};
    ::GetCursorPos(&pointer);
    pointerAtStart_ = Point{pointer.x, pointer.y};
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

void Window::Native::clearHover()
{
    state_.tooltipClock.pointerAt(nullptr, kPointerGone, ::GetTickCount64());
    updateTooltip(::GetTickCount64());
    if (state_.input.pointerLeft())
        invalidateAll();
}

// Called on every tick: a tooltip appears when it is due and goes when its control does.
void Window::Native::updateTooltip(std::uint64_t now)
{
    const Control* const due = state_.tooltipClock.due(now, state_.tooltipDelay);
    if (std::exchange(tooltipFor_, due) == due)
        return;
    if (!due) {
        tooltip_.reset();
        return;
    }
    if (!tooltip_)
        tooltip_ = std::make_unique<TooltipWindow>();
    POINT cursor{};
    ::GetCursorPos(&cursor);
    tooltip_->show(window_, {cursor.x, cursor.y}, due->hint(), state_.styles);
}

void Window::Native::dismissTooltip()
{
    state_.tooltipClock.dismiss();
    updateTooltip(::GetTickCount64());
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
    if (wParam == SPI_SETWORKAREA) {
        refreshMetrics();
        return 0;
    }
    const auto* const section = reinterpret_cast<const wchar_t*>(lParam);
    if (wParam == SPI_SETHIGHCONTRAST || (section && std::wcscmp(section, L"ImmersiveColorSet") == 0))
        restyle();
    return passOn(WM_SETTINGCHANGE, wParam, lParam);
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

} // namespace vela
