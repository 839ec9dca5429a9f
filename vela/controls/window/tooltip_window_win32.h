// The window that shows a tooltip: over everything, never activated, and the mouse goes through it.
#pragma once

#include "vela/controls/widgets/tooltip.h"
#include "vela/controls/window/window.h"

namespace vela {

class TooltipWindow {
public:
    // `pointer` is in screen pixels; the tooltip keeps inside its monitor. The owner's styles and its scale
    // are used.
    void show(const Window& owner, Point pointer, const std::wstring& text,
              std::shared_ptr<const StyleSheet> styles);
    void hide() { window_.reset(); }
    const Window* window() const noexcept { return window_.get(); }

private:
    std::unique_ptr<Window> window_;
};

} // namespace vela
