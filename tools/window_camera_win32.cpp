#include "tools/window_camera_win32.h"

#include "vela/theme/fields/record_scale.h"

#include <windows.h>

namespace tools {

void changeDpi(const vela::Window& window, vela::Size design, std::int32_t dpi)
{
    RECT place{};
    if (!::GetWindowRect(window.handle(), &place))
        return;
    place.right = place.left + vela::scaledLength(design.width, dpi);
    place.bottom = place.top + vela::scaledLength(design.height, dpi);
    ::SendMessageW(window.handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

std::unique_ptr<vela::DibSurface> pictureOf(const vela::Window& window)
{
    auto surface = std::make_unique<vela::DibSurface>(vela::sizeOf(window.clientRect()));
    ::SendMessageW(window.handle(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface->dc()), PRF_CLIENT);
    return surface;
}

} // namespace tools
