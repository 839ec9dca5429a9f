// Where a control is: bounds, the design they start from, minimum sizes and the change to another DPI.
#include "vela/controls/tree/control.h"
#include "vela/controls/tree/panel.h"
#include "vela/mul_div.h"
#include "vela/render/surface/focus_ring.h"

#include <algorithm>

namespace vela {

namespace {

struct Scale {
    std::int32_t to;
    std::int32_t from;
    std::int32_t operator()(std::int32_t value) const noexcept { return mulDiv(value, to, from); }
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

} // namespace

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

Rect Control::damageBounds() const
{
    const Rect local = localBounds();
    if (isContainer()) // it clips what is painted on it, and its own surface too
        return local;
    Rect reach = acceptsFocus() ? united(local, focusRingBounds(focusBounds(), dpi_)) : local;
    const auto add = [&reach](const Rect& rect) { reach = isEmpty(rect) ? reach : united(reach, rect); };
    visitSurfaces([&add](const PaintedSurface& surface) { add(reachOf(surface)); });
    // Children move with it.
    const Point content = contentOrigin();
    for (const Control* child : children()) {
        if (child->visible_)
            add(movedBy(child->damageBounds(), {child->bounds_.x + content.x, child->bounds_.y + content.y}));
    }
    return reach;
}

// The visible part of it in client pixels; empty without a window.
Rect Control::clientDamage() const
{
    if (!window_ || !window_->isAlive())
        return {};
    Rect damage = damageBounds();
    for (const Control* at = this;; at = at->container_) {
        damage = movedBy(damage, {at->bounds_.x, at->bounds_.y});
        const Control* const container = at->container_;
        if (!container)
            return intersection(at->window_ ? damage : window_->clientRect(), window_->clientRect());
        damage = movedBy(damage, container->contentOrigin());
        if (container->isContainer())
            damage = intersection(damage, container->localBounds());
    }
}

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

void Control::setMinimumSize(Size size)
{
    minimum_ = size;
    hasMinimum_ = true;
    rememberSource();
    minimumSizeMayHaveChanged();
}

std::optional<Rect> Control::windowRect() const
{
    Rect local = localBounds();
    const Control* top = this;
    for (;; top = top->container_) {
        local = movedBy(local, {top->bounds_.x, top->bounds_.y});
        if (!top->container_)
            break;
        local = movedBy(local, top->container_->contentOrigin());
    }
    return top->window_ ? std::optional(local) : std::nullopt;
}

Size Control::cachedMinimumSize() const
{
    if (!cachedMinimum_)
        cachedMinimum_ = minimumSize();
    return *cachedMinimum_;
}

// A container whose own minimum is not cached stands in no container with a cached one, or does not count
// there: the walk can stop at it. The window needs no notice: it asks the root whenever Windows wants to know
// its least size.
void Control::minimumSizeMayHaveChanged()
{
    cachedMinimum_.reset();
    for (Control* above = container_; above && above->cachedMinimum_; above = above->container_)
        above->cachedMinimum_.reset();
}

void Control::layoutInside(const Rect& content)
{
    captureDesign({content.width, content.height});
    if (!visible_)
        return;
    const Rect rect = layoutChild(request_, cachedMinimumSize(), content);
    if (rect == bounds_)
        return;
    invalidate(InvalidationReason::Geometry);
    bounds_ = rect;
    onBoundsChanged();
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
    cachedMinimum_.reset();
}

Size Control::minimumParentHint() const
{
    if (collapsed_)
        return {};
    const Rect& design = layoutCaptured_ ? request_.design : bounds_;
    const Size parent = layoutCaptured_ ? request_.designParent : Size{};
    return minimumParentSizeHint(design, parent, request_.anchors, cachedMinimumSize());
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
    cachedMinimum_.reset();
    for (Control* child : children())
        child->rescale(dpi);
    onScaleChanged();
    onBoundsChanged();
}

Point Control::contentOrigin() const noexcept
{
    const bool scrolls = viewportMode_ == 1 && viewportSize_.width > 0 && viewportSize_.height > 0;
    return scrolls ? Point{viewportRect_.x, viewportRect_.y} : Point{};
}

std::int32_t Control::scaled(std::int32_t designPixels) const noexcept
{
    return mulDiv(designPixels, dpi_, kDesignDpi);
}

} // namespace vela
