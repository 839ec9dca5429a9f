// Painting of a window: the damaged part of the tree into a buffer that lives as long as the window keeps its
// size, and from there to the screen.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/cursor_win32.h"
#include "vela/controls/tree/damage.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/owned_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/paint/paint.h"
#include "vela/render/paint/unless_out_of_memory.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace vela {

namespace {

std::vector<Rect> rectsOf(HRGN region)
{
    std::vector<std::byte> bytes(::GetRegionData(region, 0, nullptr));
    auto* const data = reinterpret_cast<RGNDATA*>(bytes.data());
    if (::GetRegionData(region, static_cast<DWORD>(bytes.size()), data) == 0)
        return {};
    const auto* const first = reinterpret_cast<const RECT*>(data->Buffer);
    std::vector<Rect> rects(data->rdh.nCount);
    std::transform(first, first + data->rdh.nCount, rects.begin(), toRect);
    return rects;
}

} // namespace

// A buffer of the client area's size; true when it is a new one, with nothing in it.
bool Window::Native::fitBackBuffer()
{
    const Size size = state_.lastClientSize;
    const bool fits = hasBackBuffer() && backBuffer_->size() == size;
    if (fits || isEmpty(size))
        return false;
    backBuffer_.emplace(size);
    isPaintedAhead_ = false;
    return true;
}

void Window::Native::noteDamage(const Rect& rect) noexcept
{
    isDamageScattered_ = isDamageScattered_ || (!isEmpty(damage_) && rect != damage_);
    damage_ = around(damage_, rect);
}

// Those parts of the picture, or all of it where there was none. False without a buffer.
bool Window::Native::paintBuffer(const std::vector<Rect>& parts)
{
    const bool fresh = fitBackBuffer();
    if (!hasBackBuffer() || isEmpty(state_.lastClientSize))
        return false;
    ::SelectClipRgn(backBuffer_->dc(), nullptr);
    const PaintClip clip(backBuffer_->dc(), fresh ? std::vector{window_.clientRect()} : parts);
    paintTree(backBuffer_->dc());
    return true;
}

void Window::Native::paintAhead()
{
    fitBackBuffer();
    if (!hasBackBuffer())
        return;
    allDamaged_ = false;
    ::SelectClipRgn(backBuffer_->dc(), nullptr);
    isPaintedAhead_ = paintUnlessOutOfMemory([this] { paintTree(backBuffer_->dc()); });
    damage_ = {};
    isDamageScattered_ = false;
}

// A window appears with its picture, which is painted before anything of it can be seen.
LRESULT Window::Native::onShowWindow(WPARAM wParam, LPARAM lParam)
{
    if (wParam && state_.styles)
        paintAhead();
    return passOn(WM_SHOWWINDOW, wParam, lParam);
}

LRESULT Window::Native::onPaint()
{
    const HWND handle = state_.handle;
    allDamaged_ = false;
    // Before BeginPaint, which forgets it: the damage itself rather than the rectangle around it. In one
    // place both are the same, and the system need not be asked.
    const bool isScattered = std::exchange(isDamageScattered_, false);
    const Rect known = std::exchange(damage_, {});
    const OwnedRegion region(isScattered ? ::CreateRectRgn(0, 0, 0, 0) : nullptr);
    if (isScattered)
        ::GetUpdateRgn(handle, region.get(), FALSE);
    const auto start = std::chrono::steady_clock::now();
    PAINTSTRUCT paint{};
    const HDC screen = ::BeginPaint(handle, &paint);
    const Rect part = toRect(paint.rcPaint);
    const bool isPaintedAhead = std::exchange(isPaintedAhead_, false);
    // What grows beside the damage is painted as it was: on the screen it need not be changed.
    paintUnlessOutOfMemory([&] {
        const std::vector<Rect> damage = isPaintedAhead ? std::vector{known}
                                         : isScattered  ? rectsOf(region.get())
                                                        : std::vector{part};
        paintBuffer(grownDamage(state_.root, damage));
    });
    if (screen && hasBackBuffer())
        ::BitBlt(screen, part.x, part.y, part.width, part.height, backBuffer_->dc(), part.x, part.y, SRCCOPY);
    ::EndPaint(handle, &paint);
    if (lights_.isPaintingDue()) {
        const std::chrono::duration<std::uint32_t, std::micro> spent =
            std::chrono::duration_cast<std::chrono::duration<std::uint32_t, std::micro>>(
                std::chrono::steady_clock::now() - start);
        lights_.painted(spent.count());
    }
    return 0;
}

// For whoever wants a picture of the window: previews, animations, screen readers. What they do not want of
// it must not be painted on their context, so where more is needed than that, the buffer takes it.
LRESULT Window::Native::onPrintClient(HDC dc)
{
    paintUnlessOutOfMemory([&] {
        const Rect part = visiblePart(dc, window_.clientRect());
        const std::vector<Rect> parts = grownDamage(state_.root, {part});
        if (parts.size() == 1 || !paintBuffer(parts))
            return paintTree(dc);
        ::BitBlt(dc, part.x, part.y, part.width, part.height, backBuffer_->dc(), part.x, part.y, SRCCOPY);
    });
    return 0;
}

void Window::Native::paintTree(HDC dc)
{
    PaintContext context = paintContext(dc);
    context.time = lights_.time();
    context.profile = lights_.profile();
    context.monitor = monitor_;
    const PaintContextBinding binding(dc, context);
    state_.root.paint(dc, {});
    if (!state_.debugOverlay.on)
        return;
    const Point at = cursorInClient(state_.handle);
    const Control* const under = controlAt(state_.root, at);
    paintDebugOverlay(dc, state_.root, state_.debugOverlay, at, under == &state_.root ? nullptr : under,
                      state_.dpi);
}

} // namespace vela
