#include "vela/controls/control.h"

#include "vela/controls/panel.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

constexpr std::int32_t kDesignDpi = 96;

// value * to / from, rounded to the nearest with halves away from zero, saturated.
std::int32_t rescaledLength(std::int32_t value, std::int32_t to, std::int32_t from) noexcept
{
    const std::int64_t product = std::int64_t{value} * to;
    const std::int64_t half = product < 0 ? -from / 2 : from / 2;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>((product + half) / from, INT32_MIN, INT32_MAX));
}

struct Scale {
    std::int32_t to;
    std::int32_t from;
    std::int32_t operator()(std::int32_t value) const noexcept { return rescaledLength(value, to, from); }
    Size operator()(Size size) const noexcept { return {(*this)(size.width), (*this)(size.height)}; }
    Rect operator()(const Rect& rect) const noexcept
    {
        return {(*this)(rect.x), (*this)(rect.y), (*this)(rect.width), (*this)(rect.height)};
    }
};

LayoutRequest scaledRequest(LayoutRequest request, Scale scale) noexcept
{
    request.design = scale(request.design);
    request.designParent = scale(request.designParent);
    Constraints& c = request.constraints;
    for (EdgeConstraint* edge : {&c.left, &c.right, &c.centerX, &c.top, &c.bottom, &c.centerY})
        edge->offset = scale(edge->offset);
    for (ExtentConstraint* fixed : {&c.width, &c.height})
        fixed->extent = scale(fixed->extent);
    return request;
}

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

void Control::setBounds(const Rect& bounds)
{
    if (bounds == bounds_)
        return;
    invalidate(InvalidationReason::Geometry);
    bounds_ = bounds;
    request_.design = bounds;
    layoutCaptured_ = false;
    rememberSource();
    onBoundsChanged();
    minimumSizeMayHaveChanged();
    invalidate(InvalidationReason::Geometry);
}

Size Control::minimumSize() const
{
    if (collapsed_)
        return {};
    Size result = minimum_;
    if (!hasMinimum_) {
        const Rect& own = layoutCaptured_ ? request_.design : bounds_;
        result = {own.width, own.height};
    }
    result = clampedAtZero(result);
    for (const Control* child : children_) {
        if (child->visible_ && !child->collapsed_)
            result = largerOf(result, child->minimumParentHint());
    }
    return result;
}

Rect Control::localBounds() const { return {0, 0, std::max(bounds_.width, 0), std::max(bounds_.height, 0)}; }

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

void Control::setAnchors(Anchors anchors)
{
    request_.anchors = anchors;
    request_.design = bounds_;
    rememberSource();
    minimumSizeMayHaveChanged();
}

void Control::setConstraints(const Constraints& constraints)
{
    request_.constraints = constraints;
    request_.constraintsEnabled = true;
    rememberSource();
}

void Control::clearConstraints()
{
    request_.constraintsEnabled = false;
    rememberSource();
}

void Control::setMinimumSize(Size size)
{
    minimum_ = size;
    hasMinimum_ = true;
    rememberSource();
    minimumSizeMayHaveChanged();
}

void Control::clearMinimumSize()
{
    hasMinimum_ = false;
    minimumSizeMayHaveChanged();
}

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
    if (std::exchange(flag, value) != value)
        invalidate(InvalidationReason::State);
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

void Control::attach(WindowHost* window)
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
    if (!window_ || !window_->isAlive())
        return;
    const Rect client = window_->clientRect();
    const Rect visible = intersection(windowRect().value_or(client), client);
    if (!isEmpty(visible))
        window_->invalidateClient(visible, reason);
}

std::optional<Rect> Control::windowRect() const
{
    Rect rect = localBounds();
    const Control* top = this;
    for (;; top = top->container_) {
        rect.x += top->bounds_.x;
        rect.y += top->bounds_.y;
        if (!top->container_)
            break;
        const Point origin = top->container_->contentOrigin();
        rect.x += origin.x;
        rect.y += origin.y;
    }
    return top->window_ ? std::optional(rect) : std::nullopt;
}

Size Control::settledMinimumSize() const
{
    if (!settledMinimum_)
        settledMinimum_ = minimumSize();
    return *settledMinimum_;
}

// Whoever is unsettled has unsettled containers, or containers that do not count it: the walk can stop there.
void Control::minimumSizeMayHaveChanged()
{
    settledMinimum_.reset();
    for (Control* above = container_; above && above->settledMinimum_; above = above->container_)
        above->settledMinimum_.reset();
    if (window_)
        window_->minimumSizeChanged();
}

void Control::layoutInside(const Rect& content)
{
    captureDesign({content.width, content.height});
    if (!visible_)
        return;
    const Rect rect = layoutChild(request_, settledMinimumSize(), content);
    if (rect == bounds_)
        return;
    invalidate(InvalidationReason::Geometry);
    bounds_ = rect;
    onBoundsChanged();
    if (window_)
        window_->minimumSizeChanged();
    invalidate(InvalidationReason::Geometry);
}

void Control::captureDesign(Size parent)
{
    if (parent.width <= 0 || parent.height <= 0)
        return;
    if (layoutCaptured_ && request_.designParent.width > 0 && request_.designParent.height > 0)
        return;
    request_.design = bounds_;
    request_.designParent = capturedParentSize(bounds_, parent);
    layoutCaptured_ = true;
    rememberSource();
    settledMinimum_.reset();
}

Size Control::minimumParentHint() const
{
    if (collapsed_)
        return {};
    const Rect& design = layoutCaptured_ ? request_.design : bounds_;
    const Size parent = layoutCaptured_ ? request_.designParent : Size{};
    return minimumParentSizeHint(design, parent, request_.anchors, settledMinimumSize());
}

void Control::rememberSource()
{
    source_ = request_;
    sourceMinimum_ = minimum_;
    sourceDpi_ = dpi_;
}

void Control::rescale(std::int32_t dpi)
{
    if (dpi <= 0 || dpi == dpi_)
        return;
    const Scale fromSource{dpi, sourceDpi_};
    bounds_ = layoutCaptured_ ? Scale{dpi, dpi_}(bounds_) : fromSource(source_.design);
    request_ = scaledRequest(source_, fromSource);
    minimum_ = fromSource(sourceMinimum_);
    dpi_ = dpi;
    settledMinimum_.reset();
    for (Control* child : children())
        child->rescale(dpi);
    onScaleChanged();
    onBoundsChanged();
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

Point Control::contentOrigin() const noexcept
{
    const bool scrolls = viewportMode_ == 1 && viewportSize_.width > 0 && viewportSize_.height > 0;
    return scrolls ? Point{viewportRect_.x, viewportRect_.y} : Point{};
}

std::int32_t Control::scaled(std::int32_t designPixels) const noexcept
{
    return rescaledLength(designPixels, dpi_, kDesignDpi);
}

} // namespace vela
