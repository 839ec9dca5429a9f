// A window's frame: where it opens, how large it may be, which part of it the pointer is on, and what the
// desktop's compositor draws around it.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/cursor_win32.h"
#include "vela/library_win32.h"
#include "vela/render/surface/surface_shape.h"
#include "vela/theme/fields/record_scale.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// The compositor's attributes are newer than the cross compiler's headers.
constexpr DWORD kCornerPreference = 33;
constexpr DWORD kCornersAsUsual = 0;
constexpr DWORD kCornersSquare = 1;
constexpr DWORD kCornersRound = 2;
constexpr DWORD kBorderColor = 34;
constexpr DWORD kBorderNone = 0xFFFFFFFE;
constexpr DWORD kBorderDefault = 0xFFFFFFFF;

void setCompositorAttribute(HWND handle, DWORD attribute, DWORD value) noexcept
{
    using SetAttribute = HRESULT WINAPI(HWND, DWORD, const void*, DWORD);
    static const SystemLibrary library(L"dwmapi.dll");
    static SetAttribute* const set = library.function<SetAttribute>("DwmSetWindowAttribute");
    if (set)
        set(handle, attribute, &value, sizeof value);
}

std::int32_t dpiOf(HMONITOR monitor) noexcept
{
    using GetDpi = HRESULT WINAPI(HMONITOR, int, UINT*, UINT*);
    static const SystemLibrary library(L"shcore.dll");
    static GetDpi* const get = library.function<GetDpi>("GetDpiForMonitor");
    UINT x = 0;
    UINT y = 0;
    constexpr int kEffective = 0;
    if (get && SUCCEEDED(get(monitor, kEffective, &x, &y)))
        return static_cast<std::int32_t>(y);
    return static_cast<std::int32_t>(::GetDpiForSystem());
}

HMONITOR monitorForNewWindow(HWND owner) noexcept
{
    if (owner && ::IsWindow(owner))
        return ::MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST);
    const Point cursor = cursorOnScreen();
    return ::MonitorFromPoint({cursor.x, cursor.y}, MONITOR_DEFAULTTONEAREST);
}

// What Windows' own frame adds to a client area.
Size standardFrame(WindowStyle style, std::int32_t dpi) noexcept
{
    RECT outer{};
    ::AdjustWindowRectExForDpi(&outer, style.style, FALSE, style.extended, static_cast<UINT>(dpi));
    return sizeOf(toRect(outer));
}

struct ZoneCode {
    FrameZone zone;
    LRESULT hit;     // of WM_NCHITTEST
    WPARAM dragEdge; // of WM_SIZING
};
constexpr ZoneCode kZoneCodes[] = {
    {FrameZone::Left, HTLEFT, WMSZ_LEFT},
    {FrameZone::Right, HTRIGHT, WMSZ_RIGHT},
    {FrameZone::Top, HTTOP, WMSZ_TOP},
    {FrameZone::TopLeft, HTTOPLEFT, WMSZ_TOPLEFT},
    {FrameZone::TopRight, HTTOPRIGHT, WMSZ_TOPRIGHT},
    {FrameZone::Bottom, HTBOTTOM, WMSZ_BOTTOM},
    {FrameZone::BottomLeft, HTBOTTOMLEFT, WMSZ_BOTTOMLEFT},
    {FrameZone::BottomRight, HTBOTTOMRIGHT, WMSZ_BOTTOMRIGHT},
};

LRESULT hitCodeOf(FrameZone zone) noexcept
{
    const auto* const row = std::find_if(std::begin(kZoneCodes), std::end(kZoneCodes),
                                         [zone](const ZoneCode& code) { return code.zone == zone; });
    return row == std::end(kZoneCodes) ? HTCLIENT : row->hit;
}

FrameZone draggedZone(WPARAM edge) noexcept
{
    const auto* const row = std::find_if(std::begin(kZoneCodes), std::end(kZoneCodes),
                                         [edge](const ZoneCode& code) { return code.dragEdge == edge; });
    return row == std::end(kZoneCodes) ? FrameZone::BottomRight : row->zone;
}

} // namespace

MonitorAreas monitorAreas(HMONITOR monitor) noexcept
{
    MonitorAreas areas;
    areas.dpi = dpiOf(monitor);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info)) {
        areas.monitor = toRect(info.rcMonitor);
        areas.work = toRect(info.rcWork);
        return areas;
    }
    areas.monitor = {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    RECT work{};
    areas.work = ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0) ? toRect(work) : areas.monitor;
    return areas;
}

bool Window::Native::create(HINSTANCE instance, Size client, WindowStyle style, HWND owner)
{
    if (!registerClass(instance))
        return false;
    const MonitorAreas areas = monitorAreas(monitorForNewWindow(owner));
    const Size frame = state_.customFrame ? Size{} : standardFrame(style, areas.dpi);
    designClient_ = client;
    const std::int32_t scale = scaleFor(areas.work, areas.dpi, frame);
    const Size outer{scaledLength(client.width, scale) + frame.width,
                     scaledLength(client.height, scale) + frame.height};
    const Rect place = initialPlacement(outer, areas.work);
    return ::CreateWindowExW(style.extended, kWindowClass, state_.title.c_str(), style.style, place.x,
                             place.y, place.width, place.height, owner, nullptr, instance, this) != nullptr;
}

void Window::Native::dressFrame()
{
    setCompositorAttribute(state_.handle, kBorderColor, state_.customFrame ? kBorderNone : kBorderDefault);
    applyShape();
}

// A plain rectangle gets its round corners and its shadow from the compositor. Any other shape is cut out as
// a region, and a window with a region has neither.
void Window::Native::applyShape()
{
    if (!window_.isAlive() || !state_.customFrame)
        return;
    HRGN region = nullptr;
    if (state_.styles && !state_.maximised) {
        const auto& background = state_.styles->find<PanelStyle>(state_.root.styleKey());
        region = createShapeRegion(scaledToDpi(background.surface, state_.dpi), state_.lastClientSize);
    }
    const DWORD corners = region ? kCornersSquare : state_.customFrame ? kCornersRound : kCornersAsUsual;
    setCompositorAttribute(state_.handle, kCornerPreference, corners);
    if (region || shaped_)
        ::SetWindowRgn(state_.handle, region, TRUE); // which takes the region over
    shaped_ = region != nullptr;
}

void Window::Native::loadIcons(HINSTANCE instance)
{
    constexpr struct {
        OwnedIcon Native::*icon;
        WPARAM kind;
        int width;
        int height;
    } kIcons[] = {{&Native::smallIcon_, ICON_SMALL, SM_CXSMICON, SM_CYSMICON},
                  {&Native::largeIcon_, ICON_BIG, SM_CXICON, SM_CYICON}};
    const auto dpi = static_cast<UINT>(monitorDpi_);
    for (const auto& row : kIcons) {
        // The program's first icon, at this monitor's size; without one the class's stays.
        OwnedIcon icon(static_cast<HICON>(
            ::LoadImageW(instance, MAKEINTRESOURCEW(1), IMAGE_ICON, ::GetSystemMetricsForDpi(row.width, dpi),
                         ::GetSystemMetricsForDpi(row.height, dpi), LR_DEFAULTCOLOR)));
        if (!icon)
            continue;
        ::SendMessageW(state_.handle, WM_SETICON, row.kind, reinterpret_cast<LPARAM>(icon.get()));
        this->*row.icon = std::move(icon);
    }
}

void Window::Native::readClientSize()
{
    RECT client{};
    if (window_.isAlive() && ::GetClientRect(state_.handle, &client))
        state_.lastClientSize = sizeOf(toRect(client));
}

Size Window::Native::frameExtra() const noexcept
{
    if (state_.customFrame || !state_.handle)
        return {};
    return standardFrame({static_cast<std::uint32_t>(::GetWindowLongPtrW(state_.handle, GWL_STYLE)),
                          static_cast<std::uint32_t>(::GetWindowLongPtrW(state_.handle, GWL_EXSTYLE))},
                         monitorDpi_);
}

LRESULT Window::Native::onMove()
{
    state_.root.afterAttach();
    // Each monitor has its own way to smooth letters.
    const HMONITOR monitor = ::MonitorFromWindow(state_.handle, MONITOR_DEFAULTTONEAREST);
    if (std::exchange(monitor_, monitor) != monitor)
        invalidateAll();
    return 0;
}

LRESULT Window::Native::onSize(WPARAM wParam)
{
    const bool wasMinimised = std::exchange(minimised_, wParam == SIZE_MINIMIZED);
    if (minimised_)
        return 0;
    if (wasMinimised)
        refreshMetrics();
    const Size before = state_.lastClientSize;
    state_.maximised = wParam == SIZE_MAXIMIZED;
    window_.layoutTree();
    if (before == state_.lastClientSize)
        return 0;
    invalidateAll();
    applyShape();
    return 0;
}

LRESULT Window::Native::onSizeMove(bool inside) noexcept
{
    state_.inSizeMove = inside;
    return 0;
}

FrameFacts Window::Native::frameFacts(Point cursorScreen) const
{
    return {cursorScreen, screenToClient(state_.handle, cursorScreen), window_.clientRect(),
            window_.minimumClientSize(), window_.minimumTrackSize()};
}

LRESULT Window::Native::onMinMaxInfo(MINMAXINFO& info) const
{
    const MonitorAreas areas = monitorAreas(::MonitorFromWindow(state_.handle, MONITOR_DEFAULTTONEAREST));
    const TrackingSizes sizes =
        trackingSizes(areas.monitor, areas.work, {info.ptMaxTrackSize.x, info.ptMaxTrackSize.y},
                      window_.minimumTrackSize());
    info.ptMaxSize = {sizes.maximised.width, sizes.maximised.height};
    info.ptMaxPosition = {sizes.maximisedAt.x, sizes.maximisedAt.y};
    info.ptMaxTrackSize = {sizes.largest.width, sizes.largest.height};
    info.ptMinTrackSize = {sizes.smallest.width, sizes.smallest.height};
    if (state_.diagnostics)
        window_.writeDiagnostic(trackingDiagnostic(sizes, frameFacts(cursorOnScreen())));
    return 0;
}

LRESULT Window::Native::onNcHitTest(LPARAM lParam) const
{
    const Point cursor = pointFrom(lParam);
    const bool resizes = state_.customFrame && state_.resizeBorder > 0 && !::IsZoomed(state_.handle) &&
                         !isEmpty(state_.lastClientSize);
    LRESULT hit = 0;
    if (resizes) {
        hit = hitCodeOf(frameZoneAt(state_.lastClientSize, screenToClient(state_.handle, cursor),
                                    scaledLength(state_.resizeBorder, state_.dpi)));
    } else {
        hit = passOn(WM_NCHITTEST, 0, lParam);
    }
    if (state_.diagnostics)
        window_.writeDiagnostic(hitTestDiagnostic(hit, frameFacts(cursor)));
    return hit;
}

// A frame of our own that has no maximise box must not be maximised by a double click on what Windows takes
// for its caption.
LRESULT Window::Native::onNcDoubleClick(WPARAM wParam, LPARAM lParam) const
{
    const LONG_PTR style = ::GetWindowLongPtrW(state_.handle, GWL_STYLE);
    if (state_.customFrame && wParam == HTCAPTION && !(style & WS_MAXIMIZEBOX))
        return 0;
    return passOn(WM_NCLBUTTONDBLCLK, wParam, lParam);
}

LRESULT Window::Native::onFrameMessage(UINT message, WPARAM wParam, LPARAM lParam) const noexcept
{
    if (!state_.customFrame)
        return passOn(message, wParam, lParam);
    return message == WM_NCACTIVATE ? 1 : 0;
}

LRESULT Window::Native::onSizing(WPARAM edge, RECT& proposed) const
{
    const Edges before{proposed.left, proposed.top, proposed.right, proposed.bottom};
    const Edges after = clampedToMinimum(before, draggedZone(edge), window_.minimumTrackSize());
    proposed = {after.left, after.top, after.right, after.bottom};
    if (state_.diagnostics)
        window_.writeDiagnostic(sizingDiagnostic(edge, before, after, frameFacts(cursorOnScreen())));
    return 1;
}

// The system's own move loop, started as if the pointer had pressed a caption.
void Window::Native::beginMove()
{
    ::ReleaseCapture();
    const Point cursor = cursorOnScreen();
    ::PostMessageW(state_.handle, WM_NCLBUTTONDOWN, HTCAPTION,
                   MAKELPARAM(static_cast<WORD>(cursor.x), static_cast<WORD>(cursor.y)));
}

} // namespace vela
