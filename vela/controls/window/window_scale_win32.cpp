// The scale of a window: the DPI of the monitor that shows it, or less where the window would not fit there.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/tree/layout.h"
#include "vela/mul_div.h"

namespace vela {

Rect Window::Native::workArea() const noexcept
{
    return monitorAreas(::MonitorFromWindow(window_.handle_, MONITOR_DEFAULTTONEAREST)).work;
}

std::int32_t Window::Native::scaleFor(const Rect& workArea, std::int32_t monitorDpi,
                                      Size frame) const noexcept
{
    if (window_.fixedScale_ > 0)
        return window_.fixedScale_;
    if (!window_.shrinkToFit_)
        return monitorDpi;
    const Size room{workArea.width - frame.width, workArea.height - frame.height};
    return fittingDpi(window_.designClient_, room, monitorDpi);
}

// Takes the scale into the tree; gives the place that the window at `place` then needs. The frame, which the
// system draws, keeps its own scale.
Rect Window::Native::rescaled(const Rect& place, std::int32_t scale)
{
    const std::int32_t before = window_.dpi_;
    const Size client = window_.lastClientSize_;
    window_.dpi_ = scale;
    window_.root_.rescale(scale);
    window_.applyStyles(window_.styles_);
    const Size frame = frameExtra();
    return {place.x, place.y, mulDiv(client.width, scale, before) + frame.width,
            mulDiv(client.height, scale, before) + frame.height};
}

LRESULT Window::Native::onDpiChanged(WPARAM wParam, const RECT& suggested)
{
    const bool wasShrunk = window_.dpi_ != window_.monitorDpi_;
    window_.monitorDpi_ = HIWORD(wParam);
    const Rect work = monitorAreas(::MonitorFromRect(&suggested, MONITOR_DEFAULTTONEAREST)).work;
    const std::int32_t scale = scaleFor(work, window_.monitorDpi_, frameExtra());
    Rect place = rescaled(toRect(suggested), scale);
    // What Windows suggests grows with the monitors' DPI, and is right while the window does too.
    if (wasShrunk || scale != window_.monitorDpi_)
        place = keptInside(place, work);
    else
        place = toRect(suggested);
    ::SetWindowPos(window_.handle_, nullptr, place.x, place.y, place.width, place.height,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    // The client area may have kept its size; the tree has not.
    window_.layoutTree();
    loadIcons(reinterpret_cast<HINSTANCE>(::GetWindowLongPtrW(window_.handle_, GWLP_HINSTANCE)));
    window_.invalidateAll();
    return 0;
}

// The work area is another: a maximised frame of our own covers it as it was, for Windows moves only frames
// that it draws itself; any other window may have room for its minimum or its full scale again, or lack it.
void Window::Native::refreshMetrics()
{
    // Its place is not where it will be restored to; then it is asked again.
    if (::IsIconic(window_.handle_))
        return;
    const Rect work = workArea();
    const bool maximised = ::IsZoomed(window_.handle_) != FALSE;
    const std::int32_t scale = scaleFor(work, window_.monitorDpi_, frameExtra());
    RECT outer{};
    ::GetWindowRect(window_.handle_, &outer);
    Rect place = toRect(outer);
    if (scale != window_.dpi_)
        place = keptInside(rescaled(place, scale), work);
    if (maximised) {
        if (!window_.customFrame_)
            return window_.layoutTree();
        place = work;
    } else {
        const Size size = largerOf(sizeOf(place), window_.minimumTrackSize());
        place = {place.x, place.y, size.width, size.height};
    }
    if (place != toRect(outer))
        ::SetWindowPos(window_.handle_, nullptr, place.x, place.y, place.width, place.height,
                       SWP_NOZORDER | SWP_NOACTIVATE);
    window_.layoutTree();
}

} // namespace vela
