#include "vela/controls/window/window_win32.h"

#include "vela/render/paint/paint.h"
#include "vela/render/text/text_engine.h"
#include "vela/theme/fields/record_scale.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

#include <shellapi.h>

namespace vela {

Window::Window() : native_(std::make_unique<Native>(*this, state_))
{
    openTextEngine();
    // The root is placed by no parent: with its own size as its minimum it could grow but never shrink.
    state_.root.setMinimumSize({0, 0});
    state_.root.setStyleKey(std::wstring(kWindowVariant));
    state_.root.attach(this);
}

Window::~Window()
{
    destroy();
    state_.root.detach();
}

bool Window::create(HINSTANCE instance, std::wstring title, Size client, WindowStyle style, HWND owner)
{
    state_.title = std::move(title);
    if (!native_->create(instance, client, style, owner))
        return false;
    native_->loadIcons(instance);
    native_->dressFrame();
    layoutTree();
    return true;
}

void Window::destroy()
{
    if (isAlive())
        ::DestroyWindow(state_.handle);
}

bool Window::isAlive() const { return state_.handle && ::IsWindow(state_.handle); }

Rect Window::clientRect() const { return {0, 0, state_.lastClientSize.width, state_.lastClientSize.height}; }

void Window::layoutTree()
{
    native_->readClientSize();
    if (!isEmpty(state_.lastClientSize))
        state_.root.setBounds(clientRect());
}

Size Window::minimumClientSize() const { return state_.root.cachedMinimumSize(); }

Size Window::minimumTrackSize() const
{
    const Size client = minimumClientSize();
    const Size frame = native_->frameExtra();
    const Rect work = native_->workArea();
    return {std::clamp(saturated(std::int64_t{client.width} + frame.width), 1, std::max(work.width, 1)),
            std::clamp(saturated(std::int64_t{client.height} + frame.height), 1, std::max(work.height, 1))};
}

void Window::invalidateClient(const Rect& rect, InvalidationReason) { native_->invalidate(rect); }

void Window::Native::invalidate(const Rect& rect)
{
    if (allDamaged_ || !window_.isAlive())
        return;
    noteDamage(rect);
    const RECT damaged = toRECT(rect);
    ::InvalidateRect(state_.handle, &damaged, FALSE);
}

void Window::Native::invalidateAll()
{
    if (!window_.isAlive())
        return;
    allDamaged_ = true;
    noteDamage(window_.clientRect());
    ::InvalidateRect(state_.handle, nullptr, FALSE);
}

void Window::captureMouse(Control* control)
{
    state_.input.setCaptured(control);
    native_->captureMouse(control != nullptr);
}

const Control* Window::focusedControl() const
{
    return state_.input.windowFocused() ? state_.input.focused() : nullptr;
}

void Window::controlDetached(Control& control)
{
    state_.input.forget(control);
    state_.tooltipTiming.forget(control);
}

TextServices* Window::textServices() { return &native_->textServices(); }

void Window::writeDiagnostic(std::wstring_view line) { ::OutputDebugStringW(std::wstring(line).c_str()); }

void Window::openScreenClip()
{
    ::ShellExecuteW(nullptr, L"open", L"ms-screenclip:", nullptr, nullptr, SW_SHOWNORMAL);
}

void Window::applyStyles(std::shared_ptr<const StyleSheet> styles)
{
    if (!styles)
        return;
    state_.styles = std::move(styles);
    native_->invalidateAll();
    const PanelStyle& background = state_.styles->find<PanelStyle>(state_.root.styleKey());
    state_.root.setSurface(scaledToDpi(background.surface, state_.dpi));
    styleTree(state_.root, *state_.styles);
    native_->applyShape();
}

void Window::setStyleSource(StyleSource source)
{
    state_.styleSource = std::move(source);
    if (state_.styleSource)
        applyStyles(state_.styleSource());
}

CommandHandlers::Subscription Window::subscribe(std::wstring action, CommandHandlers::Handler handler)
{
    return commands_.subscribe(std::move(action), std::move(handler));
}

void Window::unsubscribe(CommandHandlers::Subscription subscription) { commands_.unsubscribe(subscription); }

bool Window::performChromeAction(std::wstring_view action)
{
    static constexpr struct {
        std::wstring_view action;
        WPARAM command;
    } kCommands[] = {{L"minimize", SC_MINIMIZE},
                     {L"maximize", SC_MAXIMIZE},
                     {L"restore", SC_RESTORE},
                     {L"close", SC_CLOSE}};
    if (!isAlive())
        return false;
    if (action == L"drag") {
        native_->beginMove();
        return true;
    }
    for (const auto& [name, command] : kCommands) {
        if (name != action)
            continue;
        // Posted: the control that asked is still handling its event.
        ::PostMessageW(state_.handle, WM_SYSCOMMAND, command, 0);
        return true;
    }
    return false;
}

} // namespace vela
