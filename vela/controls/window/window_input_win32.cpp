// A window's input: Windows' messages become events of the control tree.
#include "vela/controls/window/window_win32.h"

#include "vela/controls/system/cursor_win32.h"
#include "vela/library_win32.h"
#include "vela/text.h"

#include <algorithm>
#include <utility>

#include <imm.h>

namespace vela {

namespace {

bool isDown(int key) noexcept { return ::GetKeyState(key) < 0; }

KeyModifiers modifiersNow() noexcept { return {isDown(VK_CONTROL), isDown(VK_SHIFT), isDown(VK_MENU)}; }

constexpr struct ButtonMessage {
    UINT message;
    MouseAction action;
    MouseButton button;
} kButtonMessages[] = {
    {WM_LBUTTONDOWN, MouseAction::Press, MouseButton::Left},
    {WM_LBUTTONUP, MouseAction::Release, MouseButton::Left},
    {WM_MBUTTONDOWN, MouseAction::Press, MouseButton::Middle},
    {WM_MBUTTONUP, MouseAction::Release, MouseButton::Middle},
};

// The functions of the input method's library, which is not always there.
struct InputMethod {
    SystemLibrary library{L"imm32.dll"};
    decltype(&::ImmGetContext) context = library.function<decltype(::ImmGetContext)>("ImmGetContext");
    decltype(&::ImmReleaseContext) release =
        library.function<decltype(::ImmReleaseContext)>("ImmReleaseContext");
    decltype(&::ImmSetCompositionWindow) placeComposition =
        library.function<decltype(::ImmSetCompositionWindow)>("ImmSetCompositionWindow");
    decltype(&::ImmSetCandidateWindow) placeCandidates =
        library.function<decltype(::ImmSetCandidateWindow)>("ImmSetCandidateWindow");
};

// The composition begins at the caret, and the candidates leave the caret's line free.
void placeInputMethod(HWND handle, const Rect& caret)
{
    static const InputMethod method;
    if (!method.context || !method.release || !method.placeComposition || !method.placeCandidates)
        return;
    const HIMC context = method.context(handle);
    if (!context)
        return;
    COMPOSITIONFORM composition{CFS_POINT, {caret.x, caret.y}, {}};
    CANDIDATEFORM candidates{0, CFS_EXCLUDE, {caret.x, caret.y + caret.height}, toRECT(caret)};
    method.placeComposition(context, &composition);
    method.placeCandidates(context, &candidates);
    method.release(handle, context);
}

std::optional<Rect> caretOf(const Control* control)
{
    const std::optional<Rect> caret = control ? control->caretRect() : std::nullopt;
    const std::optional<Rect> place = caret ? control->windowRect() : std::nullopt;
    return place ? std::optional(movedBy(*caret, {place->x, place->y})) : std::nullopt;
}

} // namespace

TextServices& Window::Native::textServices() noexcept
{
    textServices_.setOwner(state_.handle);
    return textServices_;
}

void Window::Native::captureMouse(bool capture)
{
    if (capture && window_.isAlive())
        ::SetCapture(state_.handle);
    else if (::GetCapture() == state_.handle)
        ::ReleaseCapture();
}

LRESULT Window::Native::onMouseMove(LPARAM lParam)
{
    const Point position = pointFrom(lParam);
    if (!trackingLeave_) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, state_.handle, 0};
        trackingLeave_ = ::TrackMouseEvent(&track) != FALSE;
    }
    // A window that opens under a resting pointer is told of it too, but the user has asked for nothing yet.
    if (pointerAtStart_ && cursorOnScreen() != *pointerAtStart_)
        pointerAtStart_.reset();
    const Control* const hinted = pointerAtStart_ ? nullptr : hintedControlAt(state_.root, position);
    state_.tooltipTiming.pointerAt(hinted, position, ::GetTickCount64());
    state_.input.mouseMoved(position);
    // The overlay's header tells where the pointer is.
    if (state_.debugOverlay.on)
        invalidateAll();
    return 0;
}

LRESULT Window::Native::onMouseLeave()
{
    trackingLeave_ = false;
    clearHover();
    return 0;
}

void Window::Native::clearHover()
{
    state_.tooltipTiming.pointerAt(nullptr, kPointerGone, ::GetTickCount64());
    updateTooltip(::GetTickCount64());
    if (state_.input.pointerLeft())
        invalidateAll();
}

LRESULT Window::Native::onMouseButton(UINT message, LPARAM lParam)
{
    dismissTooltip();
    const auto* const row = std::find_if(std::begin(kButtonMessages), std::end(kButtonMessages),
                                         [message](const auto& each) { return each.message == message; });
    if (row == std::end(kButtonMessages))
        return 0;
    MouseEvent event;
    event.action = row->action;
    event.button = row->button;
    event.position = pointFrom(lParam);
    event.modifiers = modifiersNow();
    const bool pressed = row->action == MouseAction::Press;
    if (pressed) {
        const Size slop{::GetSystemMetrics(SM_CXDOUBLECLK), ::GetSystemMetrics(SM_CYDOUBLECLK)};
        event.clicks = clicks_.press(event.position, static_cast<std::uint32_t>(::GetMessageTime()),
                                     ::GetDoubleClickTime(), slop);
        ::SetCapture(state_.handle);
    }
    state_.input.mouseButton(event);
    // Last: a handler may have destroyed the window.
    if (!pressed && !state_.input.captured())
        captureMouse(false);
    return 0;
}

LRESULT Window::Native::onMouseWheel(WPARAM wParam, LPARAM lParam)
{
    dismissTooltip();
    MouseEvent event;
    event.action = MouseAction::Wheel;
    event.position = screenToClient(state_.handle, pointFrom(lParam));
    event.wheelDelta = GET_WHEEL_DELTA_WPARAM(wParam);
    event.time = static_cast<std::uint32_t>(::GetMessageTime());
    event.modifiers = modifiersNow();
    return state_.input.mouseSecondary(event) ? 0 : passOn(WM_MOUSEWHEEL, wParam, lParam);
}

// From the keyboard there is no position: the menu opens at the caret, or in the middle of the control.
LRESULT Window::Native::onContextMenu(WPARAM wParam, LPARAM lParam)
{
    dismissTooltip();
    MouseEvent event;
    event.action = MouseAction::ContextMenu;
    event.button = MouseButton::Right;
    if (lParam == -1) {
        const Control* const focused = state_.input.focused();
        const Rect all = focused ? focused->windowRect().value_or(Rect{}) : Rect{};
        const Rect at = caretOf(focused).value_or(Rect{all.x + all.width / 2, all.y, 0, all.height / 2});
        event.position = {at.x, at.y + at.height};
        event.position.y = std::min(event.position.y, all.y + std::max(all.height - 1, 0));
    } else {
        event.position = screenToClient(state_.handle, pointFrom(lParam));
    }
    return state_.input.mouseSecondary(event) ? 0 : passOn(WM_CONTEXTMENU, wParam, lParam);
}

LRESULT Window::Native::onCaptureChanged(LPARAM lParam)
{
    if (reinterpret_cast<HWND>(lParam) != state_.handle)
        state_.input.captureLost();
    return 0;
}

LRESULT Window::Native::onSetCursor(WPARAM wParam, LPARAM lParam) const
{
    const bool inside = LOWORD(lParam) == HTCLIENT;
    const Control* const under = inside ? controlAt(state_.root, cursorInClient(state_.handle)) : nullptr;
    if (under && under->isEnabled() && under->showsTextCursor()) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_IBEAM));
        return TRUE;
    }
    return passOn(WM_SETCURSOR, wParam, lParam);
}

LRESULT Window::Native::onKeyDown(UINT message, WPARAM wParam, LPARAM lParam)
{
    KeyEvent event;
    event.key = static_cast<std::uint32_t>(wParam);
    event.modifiers = modifiersNow();
    event.repeated = (lParam & (1 << 30)) != 0;
    dismissTooltip();
    if (event.key == kKeyF12) {
        pressDebugKey(event);
        return 0;
    }
    // With Ctrl or Alt it means something else, also when these are let go first.
    snapshotDown_ |= event.key == kKeySnapshot;
    if (message == WM_SYSKEYDOWN)
        return passOn(message, wParam, lParam);
    if (event.key == kKeySnapshot && !event.modifiers.control && !event.modifiers.alt) {
        if (!event.repeated)
            window_.openScreenClip();
        return 0;
    }
    return state_.input.keyPressed(event) ? 0 : passOn(message, wParam, lParam);
}

// Windows reports Print Screen only when it is let go; where the press came too, it has been answered.
LRESULT Window::Native::onKeyUp(UINT message, WPARAM wParam, LPARAM lParam)
{
    const KeyModifiers modifiers = modifiersNow();
    const bool answered = wParam == kKeySnapshot && std::exchange(snapshotDown_, false);
    if (wParam == kKeySnapshot && !answered && !modifiers.control && !modifiers.alt)
        window_.openScreenClip();
    return passOn(message, wParam, lParam);
}

void Window::Native::pressDebugKey(const KeyEvent& event)
{
    if (event.repeated)
        return;
    state_.debugOverlay = afterDebugKey(state_.debugOverlay, event.modifiers);
    invalidateAll();
}

// Characters outside the first plane arrive in two halves.
LRESULT Window::Native::onCharacter(WPARAM wParam)
{
    const auto unit = static_cast<wchar_t>(wParam);
    const wchar_t first = std::exchange(highSurrogate_, isHighSurrogate(unit) ? unit : L'\0');
    if (isHighSurrogate(unit))
        return 0;
    std::wstring text;
    if (first && isLowSurrogate(unit))
        text.push_back(first);
    text.push_back(unit);
    state_.input.characterTyped(text);
    return 0;
}

LRESULT Window::Native::onImeComposition(UINT message, WPARAM wParam, LPARAM lParam) const
{
    if (const std::optional<Rect> caret = caretOf(state_.input.focused()))
        placeInputMethod(state_.handle, *caret);
    return passOn(message, wParam, lParam);
}

} // namespace vela
