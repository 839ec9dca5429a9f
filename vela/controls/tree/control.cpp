#include "vela/controls/tree/control.h"

#include "vela/controls/tree/command_event.h"
#include "vela/controls/tree/panel.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// An event as the child at that place sees it.
MouseEvent movedInto(MouseEvent event, const Control& child, Point origin) noexcept
{
    event.position.x -= child.bounds().x + origin.x;
    event.position.y -= child.bounds().y + origin.y;
    return event;
}

} // namespace

Control::Control(std::wstring id, Rect bounds) : id_(std::move(id)), bounds_(bounds)
{
    request_.design = bounds;
    source_ = request_;
}

Control::~Control()
{
    for (Control* child : children_)
        child->container_ = nullptr;
    if (container_)
        container_->abandon(*this);
}

void Control::captureState(ControlState& state) const
{
    state = {id_, bounds_, visible_, enabled_, collapsed_, styleKey_, properties()};
}

void Control::restoreState(const ControlState& state, bool withBounds)
{
    if (withBounds)
        setBounds(state.bounds);
    setVisible(state.visible);
    setEnabled(state.enabled);
    setCollapsed(state.collapsed);
    styleKey_ = state.styleKey;
    for (const auto& [name, value] : state.properties)
        setProperty(name, value);
}

void Control::detach()
{
    if (window_)
        window_->controlDetached(*this);
    for (Control* child : children_)
        child->detach();
    window_ = nullptr;
}

bool Control::mouseButton(const MouseEvent& event)
{
    if (!visible_ || !enabled_)
        return false;
    const auto& candidates = visibleChildren();
    return std::any_of(candidates.rbegin(), candidates.rend(), [&](Control* child) {
        return child->mouseButton(movedInto(event, *child, contentOrigin()));
    });
}

bool Control::mouseSecondary(const MouseEvent& event)
{
    if (!visible_ || !enabled_)
        return false;
    const auto& candidates = visibleChildren();
    return std::any_of(candidates.rbegin(), candidates.rend(), [&](Control* child) {
        return child->mouseSecondary(movedInto(event, *child, contentOrigin()));
    });
}

bool Control::mouseMoved(Point position)
{
    bool changed = false;
    const bool hot = enabled_ && !isStaticText() && !isContainer() && containsLocal(position);
    if (hot != hot_) {
        setHot(hot);
        changed = true;
    }
    const Point origin = contentOrigin();
    for (Control* child : visibleChildren()) {
        const Rect& at = child->bounds_;
        changed |= child->mouseMoved({position.x - at.x - origin.x, position.y - at.y - origin.y});
    }
    return changed;
}

bool Control::wantsAnimation() const
{
    const auto& shown = visibleChildren();
    return std::any_of(shown.begin(), shown.end(),
                       [](const Control* child) { return child->wantsAnimation(); });
}

bool Control::containsLocal(Point point) const
{
    return point.x >= 0 && point.x < bounds_.width && point.y >= 0 && point.y < bounds_.height;
}

AccessibleInfo Control::accessibleInfo() const
{
    AccessibleInfo info;
    info.name = text();
    info.description = hint_;
    info.bounds = windowRect().value_or(Rect{});
    info.enabled = enabled_;
    info.focusable = acceptsFocus();
    info.focused = hasFocus();
    return info;
}

bool Control::hasFocus() const { return window_ && window_->focusedControl() == this; }

void Control::setVisible(bool visible)
{
    if (visible_ == visible)
        return;
    visible_ = visible;
    if (container_) {
        container_->invalidateChildOrder();
        container_->minimumSizeMayHaveChanged();
    }
    // A hidden child was passed over by every layout since it was hidden.
    if (visible && parent_)
        layoutInside(parent_->contentBounds());
    invalidate(InvalidationReason::State);
}

void Control::setCollapsed(bool collapsed)
{
    if (collapsed_ == collapsed)
        return;
    collapsed_ = collapsed;
    minimumSizeMayHaveChanged();
    if (window_ && window_->isAlive())
        window_->invalidateClient(window_->clientRect(), InvalidationReason::State);
}

void Control::setFlag(bool& flag, bool value)
{
    if (flag != value)
        changeReach([&flag, value] { flag = value; });
}

void Control::addChild(Control& child)
{
    children_.push_back(&child);
    adopt(child, nullptr);
}

void Control::removeChild(Control& child)
{
    if (child.container_ != this)
        return;
    child.invalidate(InvalidationReason::Geometry);
    child.detach();
    abandon(child);
}

void Control::adopt(Control& child, Panel* owner)
{
    child.parent_ = owner;
    child.container_ = this;
    child.rescale(dpi_);
    child.attach(window_);
    invalidateChildOrder();
    minimumSizeMayHaveChanged();
}

void Control::abandon(Control& child)
{
    child.parent_ = nullptr;
    child.container_ = nullptr;
    std::erase(children_, &child);
    visibleChildren_.clear();
    childOrderDirty_ = true;
    invalidateChildOrder();
    minimumSizeMayHaveChanged();
}

void Control::attach(ControlHost* window)
{
    if (window_ == window)
        return;
    window_ = window;
    for (Control* child : children_)
        child->attach(window);
    if (window_) {
        attachToWindow();
        afterAttach();
    }
}

void Control::invalidate(InvalidationReason reason)
{
    const Rect visible = clientDamage();
    if (!isEmpty(visible))
        window_->invalidateClient(visible, reason);
}

void Control::repaintBoth(const Rect& before)
{
    const Rect after = clientDamage();
    if (!isEmpty(before) && around(after, before) != after)
        window_->invalidateClient(before, InvalidationReason::State);
    if (!isEmpty(after))
        window_->invalidateClient(after, InvalidationReason::State);
}

void Control::visitSurfaces(const SurfaceVisitor& visit) const
{
    if (const SurfaceStyle* const surface = paintedSurface())
        visit({*surface, localBounds()});
}

void Control::raise(CommandEvent& event)
{
    event.control = this;
    if (event.controlId.empty())
        event.controlId = id_;
    if (window_)
        window_->dispatchCommand(event);
}

const std::vector<Control*>& Control::visibleChildren() const
{
    if (childOrderDirty_) {
        visibleChildren_.clear();
        for (Control* child : children()) {
            if (child->visible_)
                visibleChildren_.push_back(child);
        }
        childOrderDirty_ = false;
    }
    return visibleChildren_;
}

void styleTree(Control& control, const StyleSheet& styles)
{
    control.applyStyle(styles);
    for (Control* child : control.children())
        styleTree(*child, styles);
    control.onStyleApplied();
}

} // namespace vela
