// The scale of a window: the DPI of the monitor that shows it, or less where the window would not fit there.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/tree/layout.h"
#include "vela/mul_div.h"

namespace vela {

Rect Window::Native::workArea() const noexcept
{
    return monitorAreas(::MonitorFromWindow(state_.handle, MONITOR_DEFAULTTONEAREST)).work;
}

std::int32_t Window::Native::scaleFor(const Rect& workArea, std::int32_t monitorDpi,
                                      Size frame) const noexcept
{
    if (state_.fixedScale > 0)
        return state_.fixedScale;
    if (!state_.shrinkToFit)
        return monitorDpi;
    const Size room{workArea.width - frame.width, workArea.height - frame.height};
    return fittingDpi(designClient_, room, monitorDpi);
}

// Takes the scale into the tree; gives the place that the window at `place` then needs. The frame, which the
// system draws, keeps its own scale.
Rect Window::Native::rescaled(const Rect& place, std::int32_t scale)
{
    const std::int32_t before = state_.dpi;
    const Size client = state_.lastClientSize;
    state_.dpi = scale;
    state_.root.rescale(scale);
    window_.applyStyles(state_.styles);
    const Size frame = frameExtra();
    return {place.x, place.y, mulDiv(client.width, scale, before) + frame.width,
            mulDiv(client.height, scale, before) + frame.height};
}

LRESULT Window::Native::onDpiChanged(WPARAM wParam, const RECT& suggested)
{
    const bool wasShrunk = state_.dpi != monitorDpi_;
    monitorDpi_ = HIWORD(wParam);
    const Rect work = monitorAreas(::MonitorFromRect(&suggested, MONITOR_DEFAULTTONEAREST)).work;
    const std::int32_t scale = scaleFor(work, monitorDpi_, frameExtra());
    Rect place = rescaled(toRect(suggested), scale);
    // What Windows suggests grows with the monitors' DPI, and is right while the window does too.
    if (wasShrunk || scale != monitorDpi_)
        place = movedInside(place, work);
    else
        place = toRect(suggested);
    ::SetWindowPos(state_.handle, nullptr, place.x, place.y, place.width, place.height,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    // The client area may have kept its size; the tree has not.
    window_.layoutTree();
    loadIcons(reinterpret_cast<HINSTANCE>(::GetWindowLongPtrW(state_.handle, GWLP_HINSTANCE)));
    invalidateAll();
    return 0;
}

// The work area is another: a maximised frame of our own covers it as it was, for Windows moves only frames
// that it draws itself; any other window may have room for its minimum or its full scale again, or lack it.
void Window::Native::refreshMetrics()
{
    // Its place is not where it will be restored to; then it is asked again.
    if (::IsIconic(state_.handle))
        return;
    const Rect work = workArea();
    const bool maximised = ::IsZoomed(state_.handle) != FALSE;
    const std::int32_t scale = scaleFor(work, monitorDpi_, frameExtra());
    RECT outer{};
    ::GetWindowRect(state_.handle, &outer);
    Rect place = toRect(outer);
    if (scale != state_.dpi)
        place = movedInside(rescaled(place, scale), work);
    if (maximised) {
        if (!state_.customFrame)
            return window_.layoutTree();
        place = work;
    } else {
        const Size size = largerOf(sizeOf(place), window_.minimumTrackSize());
        place = {place.x, place.y, size.width, size.height};
    }
    if (place != toRect(outer))
        ::SetWindowPos(state_.handle, nullptr, place.x, place.y, place.width, place.height,
                       SWP_NOZORDER | SWP_NOACTIVATE);
    window_.layoutTree();
}

} // namespace vela
