// The least a program with a window could be: a frameless window in the middle of the work area that fills
// its client area with one colour. What a window of the toolkit needs beyond this is its own. Usage:
// bare_window WIDTH HEIGHT
#include "vela/controls/window/window_geometry.h"
#include "vela/rect_win32.h"

#include <cwchar>

#include <windows.h>

namespace {

constexpr COLORREF kColor = RGB(40, 110, 160); // as no unpainted window looks

void paint(HWND window)
{
    PAINTSTRUCT painting{};
    const HDC dc = ::BeginPaint(window, &painting);
    ::SetDCBrushColor(dc, kColor);
    ::FillRect(dc, &painting.rcPaint, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
    ::EndPaint(window, &painting);
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    switch (message) {
    case WM_PAINT: paint(window); return 0;
    case WM_DESTROY: ::PostQuitMessage(0); return 0;
    default: return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

vela::Size sizeFrom(const wchar_t* arguments)
{
    wchar_t* rest = nullptr;
    const long width = std::wcstol(arguments, &rest, 10);
    return {width, std::wcstol(rest, nullptr, 10)};
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR arguments, int)
{
    WNDCLASSEXW record{};
    record.cbSize = sizeof record;
    record.lpfnWndProc = &procedure;
    record.hInstance = instance;
    record.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    record.lpszClassName = L"BareWindow";
    ::RegisterClassExW(&record);

    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const vela::Rect place = vela::initialPlacement(sizeFrom(arguments), vela::toRect(work));
    const HWND window =
        ::CreateWindowExW(0, record.lpszClassName, L"Bare", WS_POPUP | WS_SYSMENU, place.x, place.y,
                          place.width, place.height, nullptr, nullptr, instance, nullptr);
    ::ShowWindow(window, SW_SHOWNORMAL);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&message);
    return 0;
}
