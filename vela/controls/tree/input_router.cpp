#include "vela/controls/tree/input_router.h"

#include "vela/controls/tree/focus_order.h"
#include "vela/controls/tree/panel.h"

#include <utility>

namespace vela {

namespace {

Point localTo(const Control& control, Point position)
{
    const Rect rect = control.windowRect().value_or(Rect{});
    return {position.x - rect.x, position.y - rect.y};
}

// Shown and enabled all the way up.
bool isReachable(const Control& control) noexcept
{
    for (const Control* at = &control; at; at = at->container()) {
        if (!at->isVisible() || !at->isEnabled() || at->isCollapsed())
            return false;
    }
    return true;
}

Control* dialogControl(Control& control, DialogRole role)
{
    if (!control.isVisible())
        return nullptr;
    if (Control* const found = control.dialogControl(role))
        return found;
    for (Control* child : control.children()) {
        if (Control* const found = dialogControl(*child, role))
            return found;
    }
    return nullptr;
}

constexpr struct {
    std::uint32_t key;
    DialogRole role;
} kDialogKeys[] = {{kKeyReturn, DialogRole::Primary}, {kKeyEscape, DialogRole::Cancel}};

} // namespace

bool InputRouter::mouseButton(const MouseEvent& event)
{
    if (event.action == MouseAction::Press && std::exchange(showsFocus_, false) && focused_)
        focused_->invalidate(InvalidationReason::State);
    if (!captured_)
        return root_.mouseButton(event);
    MouseEvent local = event;
    local.position = localTo(*captured_, event.position);
    return captured_->mouseButton(local);
}

bool InputRouter::mouseSecondary(const MouseEvent& event)
{
    return !captured_ && root_.mouseSecondary(event);
}

bool InputRouter::mouseMoved(Point position)
{
    if (!captured_)
        return root_.mouseMoved(position);
    const Point local = localTo(*captured_, position);
    const bool changed = captured_->mouseMoved(local);
    captured_->mouseDragged(local);
    return changed;
}

bool InputRouter::pointerLeft() { return root_.mouseMoved(kPointerGone); }

void InputRouter::captureLost()
{
    if (Control* const loser = std::exchange(captured_, nullptr))
        loser->mouseCaptureLost();
}

Control* InputRouter::focused() const noexcept
{
    return focused_ && isReachable(*focused_) ? focused_ : nullptr;
}

void InputRouter::focus(Control* control)
{
    // What takes no keyboard leaves it where it is.
    if (control && !control->acceptsFocus())
        return;
    Control* const target = control && isReachable(*control) ? control : nullptr;
    Control* const previous = std::exchange(focused_, target);
    if (previous == target)
        return;
    for (const auto& [changed, gained] : {std::pair{previous, false}, std::pair{target, true}}) {
        if (!changed)
            continue;
        if (windowFocused_)
            changed->focusChanged(gained);
        changed->invalidate(InvalidationReason::State);
    }
}

void InputRouter::setWindowFocused(bool focused)
{
    if (std::exchange(windowFocused_, focused) == focused || !focused_)
        return;
    focused_->focusChanged(focused);
    focused_->invalidate(InvalidationReason::State);
}

bool InputRouter::keyPressed(const KeyEvent& event)
{
    const Control* const before = focused_;
    for (Control* at = focused(); at; at = at->container()) {
        if (!at->keyPressed(event))
            continue;
        showsFocus_ |= focused_ != before;
        return true;
    }
    if (event.key == kKeyTab && !event.modifiers.control && !event.modifiers.alt)
        return moveFocus(event.modifiers.shift);
    return event.modifiers == KeyModifiers{} && !event.repeated && activateDialogControl(event.key);
}

bool InputRouter::characterTyped(std::wstring_view text)
{
    Control* const target = focused();
    return target && target->characterTyped(text);
}

bool InputRouter::moveFocus(bool backwards)
{
    Control* const next =
        focusAfter(focusOrder(root_), focused(), backwards ? FocusStep::Previous : FocusStep::Next);
    if (!next)
        return false;
    showsFocus_ = true;
    focus(next);
    next->reachedByTab();
    // Also when it stays where it was: the ring appears.
    next->invalidate(InvalidationReason::State);
    return true;
}

bool InputRouter::activateDialogControl(std::uint32_t key)
{
    for (const auto& row : kDialogKeys) {
        Control* const target = row.key == key ? dialogControl(root_, row.role) : nullptr;
        if (!target || !isReachable(*target))
            continue;
        target->activate();
        return true;
    }
    return false;
}

void InputRouter::forget(const Control& control) noexcept
{
    if (captured_ == &control)
        captured_ = nullptr;
    if (focused_ == &control)
        focused_ = nullptr;
}

Control* controlAt(Control& root, Point position)
{
    if (!root.isVisible())
        return nullptr;
    const auto& children = root.children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        if (Control* const found = controlAt(**child, position))
            return found;
    }
    return root.containsLocal(localTo(root, position)) ? &root : nullptr;
}

Control* hintedControlAt(Control& root, Point position)
{
    Control* at = controlAt(root, position);
    while (at && at->hint().empty())
        at = at->container();
    return at;
}

} // namespace vela
