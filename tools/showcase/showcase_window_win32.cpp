#include "tools/showcase/showcase_window_win32.h"

#include "tools/showcase_content/content.h"
#include "tools/window_camera_win32.h"

#include <windows.h>

namespace showcase {

bool ShowcaseWindow::open()
{
    constexpr std::int32_t kResizeBorder = 5;
    setCustomFrame(true);
    setResizeBorder(kResizeBorder);
    setDiagnostics(false);
    // No WS_THICKFRAME: Windows would hold the window to the size of the screen, whatever DPI is asked for.
    constexpr vela::WindowStyle kStyle{WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX,
                                       WS_EX_APPWINDOW};
    if (!create(::GetModuleHandleW(nullptr), L"Showcase", kClientSize, kStyle))
        return false;
    titleBar_ = &addShowcase(root());
    return true;
}

void ShowcaseWindow::changeDpi(std::int32_t newDpi) { tools::changeDpi(*this, kClientSize, newDpi); }

std::unique_ptr<vela::DibSurface> ShowcaseWindow::picture() { return tools::pictureOf(*this); }

} // namespace showcase
