// The window of the showcase, for whoever shows or photographs it.
#pragma once

#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/window/window.h"
#include "vela/render/gdi/dib_gdi.h"

#include <memory>

namespace showcase {

class ShowcaseWindow : public vela::Window {
public:
    ShowcaseWindow() = default;
    ShowcaseWindow(const ShowcaseWindow&) = delete;
    ShowcaseWindow& operator=(const ShowcaseWindow&) = delete;
    ~ShowcaseWindow() override { destroy(); }

    // False when Windows refuses; the window is not shown yet.
    bool open();

    // What a monitor of that DPI would make of the window, in the same message.
    void changeDpi(std::int32_t dpi);

    // The client area as the window paints it, also the parts that no screen is large enough for.
    std::unique_ptr<vela::DibSurface> picture();

    vela::ChromeTitleBar& titleBar() noexcept { return *titleBar_; }

private:
    vela::ChromeTitleBar* titleBar_ = nullptr;
};

} // namespace showcase
