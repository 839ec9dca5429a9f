#include "vela/controls/window/tooltip_window_win32.h"

#include "vela/controls/window/window_geometry.h"
#include "vela/controls/window/window_win32.h"

namespace vela {

void TooltipWindow::show(const Window& owner, Point pointer, const std::wstring& text,
                         std::shared_ptr<const StyleSheet> styles)
{
    hide();
    auto made = std::make_unique<Window>();
    made->setQuitOnDestroy(false);
    made->setCustomFrame(true);
    made->setFixedScale(owner.dpi());
    const auto instance = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrW(owner.handle(), GWLP_HINSTANCE));
    if (!made->create(instance, {}, {1, 1},
                      {WS_POPUP, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT | WS_EX_TOPMOST},
                      owner.handle()))
        return;
    auto& view = made->root().addControl(std::make_unique<TooltipView>(L"tooltip", Rect{0, 0, 1, 1}));
    view.setText(text);
    made->applyStyles(std::move(styles));
    view.setAnchors(Anchors::Left | Anchors::Top | Anchors::Right | Anchors::Bottom);
    const MonitorAreas areas =
        monitorAreas(::MonitorFromPoint({pointer.x, pointer.y}, MONITOR_DEFAULTTONEAREST));
    // The arrow reaches about this far below its tip.
    const std::int32_t below = ::GetSystemMetricsForDpi(SM_CYCURSOR, static_cast<UINT>(areas.dpi)) * 2 / 3;
    const Rect place = tooltipPlacement(view.preferredSize(), pointer, below, below / 4, areas.work);
    ::SetWindowPos(made->handle(), HWND_TOPMOST, place.x, place.y, place.width, place.height, SWP_NOACTIVATE);
    ::ShowWindow(made->handle(), SW_SHOWNOACTIVATE);
    window_ = std::move(made);
}

} // namespace vela
