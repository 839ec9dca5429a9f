// Painting of a window: the damaged part of the tree into a buffer that lives as long as the window keeps its
// size, and from there to the screen.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/cursor_win32.h"
#include "vela/render/gdi/owned_gdi.h"
#include "vela/render/gdi/paint_context.h"

#include <chrono>
#include <utility>

namespace vela {

// A buffer of the client area's size; true when it is a new one, with nothing in it.
bool Window::Native::fitBackBuffer()
{
    const Size size = state_.lastClientSize;
    const bool fits = backBuffer_ && *backBuffer_ && backBuffer_->size() == size;
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

void Window::Native::paintAhead()
{
    if (!backBuffer_ || !*backBuffer_)
        return;
    allDamaged_ = false;
    ::SelectClipRgn(backBuffer_->dc(), nullptr);
    // Nothing of it was painted before, and looking for pictures of it takes time.
    const PaintContextBinding first(backBuffer_->dc(), withoutCaching({}));
    paintTree(backBuffer_->dc());
    damage_ = {};
    isDamageScattered_ = false;
    isPaintedAhead_ = true;
}

// A window appears with its picture, which is painted before anything of it can be seen.
LRESULT Window::Native::onShowWindow(WPARAM wParam, LPARAM lParam)
{
    if (wParam && state_.styles) {
        fitBackBuffer();
        paintAhead();
    }
    return passOn(WM_SHOWWINDOW, wParam, lParam);
}

LRESULT Window::Native::onPaint()
{
    const HWND handle = state_.handle;
    allDamaged_ = false;
    // Before BeginPaint, which forgets it: the damage itself rather than the rectangle around it. In one
    // place both are the same, and the system need not be asked.
    const OwnedRegion damage(::CreateRectRgn(0, 0, 0, 0));
    const bool isScattered = std::exchange(isDamageScattered_, false);
    const RECT known = toRECT(std::exchange(damage_, {}));
    if (isScattered)
        ::GetUpdateRgn(handle, damage.get(), FALSE);
    const auto start = std::chrono::steady_clock::now();
    PAINTSTRUCT paint{};
    const HDC screen = ::BeginPaint(handle, &paint);
    const bool fresh = fitBackBuffer();
    const bool isPaintedAhead = std::exchange(isPaintedAhead_, false);
    if (isPaintedAhead || !isScattered) {
        const RECT& part = isPaintedAhead ? known : paint.rcPaint;
        ::SetRectRgn(damage.get(), part.left, part.top, part.right, part.bottom);
    }
    if (screen && backBuffer_ && *backBuffer_ && !isEmpty(state_.lastClientSize)) {
        ::SelectClipRgn(backBuffer_->dc(), fresh ? nullptr : damage.get());
        paintTree(backBuffer_->dc());
        const Rect part = toRect(paint.rcPaint);
        ::BitBlt(screen, part.x, part.y, part.width, part.height, backBuffer_->dc(), part.x, part.y, SRCCOPY);
    }
    ::EndPaint(handle, &paint);
    if (lights_.isPaintingDue()) {
        const std::chrono::duration<std::uint32_t, std::micro> spent =
            std::chrono::duration_cast<std::chrono::duration<std::uint32_t, std::micro>>(
                std::chrono::steady_clock::now() - start);
        lights_.painted(spent.count());
    }
    return 0;
}

// For whoever wants a picture of the window: previews, animations, screen readers.
LRESULT Window::Native::onPrintClient(HDC dc)
{
    paintTree(dc);
    return 0;
}

void Window::Native::paintTree(HDC dc)
{
    PaintContext context = paintContext(dc);
    context.time = lights_.time();
    context.profile = lights_.profile();
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
