#include "vela/controls/window/window_win32.h"

#include "vela/render/paint/paint.h"
#include "vela/render/text/text.h"
#include "vela/theme/fields/record_scale.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

#include <shellapi.h>

namespace vela {

Window::Window() : root_(L"root", {}), input_(root_), native_(std::make_unique<Native>(*this))
{
    openTextEngine();
    // The root is placed by no parent: with its own size as its minimum it could grow but never shrink.
    root_.setMinimumSize({0, 0});
    root_.setStyleKey(std::wstring(kWindowVariant));
    root_.attach(this);
}

Window::~Window()
{
    destroy();
    root_.detach();
}

bool Window::create(HINSTANCE instance, std::wstring title, Size client, WindowStyle style, HWND owner)
{
    title_ = std::move(title);
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
        ::DestroyWindow(handle_);
}

bool Window::isAlive() const { return handle_ && ::IsWindow(handle_); }

Rect Window::clientRect() const { return {0, 0, lastClientSize_.width, lastClientSize_.height}; }

void Window::layoutTree()
{
    native_->readClientSize();
    if (!isEmpty(lastClientSize_))
        root_.setBounds(clientRect());
}

Size Window::minimumClientSize() const { return root_.settledMinimumSize(); }

Size Window::minimumTrackSize() const
{
    const Size client = minimumClientSize();
    const Size frame = native_->frameExtra();
    const Rect work = native_->workArea();
    return {std::clamp(client.width + frame.width, 1, std::max(work.width, 1)),
            std::clamp(client.height + frame.height, 1, std::max(work.height, 1))};
}

void Window::invalidateClient(const Rect& rect, InvalidationReason)
{
    if (allDamaged_ || !isAlive())
        return;
    native_->noteDamage(rect);
    const RECT damaged = toRECT(rect);
    ::InvalidateRect(handle_, &damaged, FALSE);
}

void Window::invalidateAll()
{
    if (!isAlive())
        return;
    allDamaged_ = true;
    native_->noteDamage(clientRect());
    ::InvalidateRect(handle_, nullptr, FALSE);
}

void Window::captureMouse(Control* control)
{
    input_.setCaptured(control);
    native_->captureMouse(control != nullptr);
}

const Control* Window::focusedControl() const { return input_.windowFocused() ? input_.focused() : nullptr; }

void Window::controlDetached(Control& control)
{
    input_.forget(control);
    tooltipClock_.forget(control);
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
    styles_ = std::move(styles);
    invalidateAll();
    const PanelStyle& ground = styles_->find<PanelStyle>(root_.styleKey());
    root_.setSurface(scaledToDpi(ground.surface, dpi_));
    styleTree(root_, *styles_);
    native_->applyShape();
}

void Window::setStyleSource(StyleSource source)
{
    styleSource_ = std::move(source);
    if (styleSource_)
        applyStyles(styleSource_());
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
        ::PostMessageW(handle_, WM_SYSCOMMAND, command, 0);
        return true;
    }
    return false;
}

} // namespace vela
