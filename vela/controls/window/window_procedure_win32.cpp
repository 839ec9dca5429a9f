// Every message that a window takes part in, and who answers it.
#include "vela/controls/window/window_win32.h"

namespace vela {

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
    // A copy: the hook may replace itself.
    const MessageHook hook = native->state_.messageHook;
    std::intptr_t answer = 0;
    const bool answered = hook && hook(handle, message, wParam, lParam, answer);
    return answered ? answer : native->handle(message, wParam, lParam);
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
    case WM_DISPLAYCHANGE: return onDisplayChange(wParam, lParam);
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

} // namespace vela
