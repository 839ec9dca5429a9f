#include "vela/controls/system/cursor_win32.h"

#include <windowsx.h>

namespace vela {

Point pointFrom(LPARAM lParam) noexcept { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

Point screenToClient(HWND window, Point screen) noexcept
{
    POINT point{screen.x, screen.y};
    ::ScreenToClient(window, &point);
    return {point.x, point.y};
}

Point cursorOnScreen() noexcept
{
    POINT cursor{};
    ::GetCursorPos(&cursor);
    return {cursor.x, cursor.y};
}

Point cursorInClient(HWND window) noexcept { return screenToClient(window, cursorOnScreen()); }

} // namespace vela
