// Where the pointer is.
#pragma once

#include "vela/geometry.h"

#include <windows.h>

namespace vela {

// The point that a mouse message carries: signed, for there are monitors to the left of the first and above
// it.
Point pointFrom(LPARAM lParam) noexcept;

Point screenToClient(HWND window, Point screen) noexcept;

// The screen's first pixel where the system does not tell, as while another desktop is shown.
Point cursorOnScreen() noexcept;
Point cursorInClient(HWND window) noexcept;

} // namespace vela
