#include "vela/controls/tree/layout.h"

#include <algorithm>
#include <cmath>

namespace vela {

namespace {

// Which part of a child its placement holds on to; growth to the minimum size goes the other way.
enum class Grip { Near, Far, Center };

struct Placement {
    std::int64_t position;
    std::int64_t extent;
    Grip grip;
};

// One axis of a request: "near" is left or top, "far" right or bottom.
struct Axis {
    std::int64_t position;
    std::int64_t extent;
    std::int64_t designParent;
    bool anchoredNear;
    bool anchoredFar;
    const EdgeConstraint& near;
    const EdgeConstraint& far;
    const EdgeConstraint& center;
    const ExtentConstraint& fixed;
};

Axis horizontalAxis(const LayoutRequest& request) noexcept
{
    const Constraints& c = request.constraints;
    return {request.design.x,
            request.design.width,
            request.designParent.width,
            contains(request.anchors, Anchors::Left),
            contains(request.anchors, Anchors::Right),
            c.left,
            c.right,
            c.centerX,
            c.width};
}

Axis verticalAxis(const LayoutRequest& request) noexcept
{
    const Constraints& c = request.constraints;
    return {request.design.y,
            request.design.height,
            request.designParent.height,
            contains(request.anchors, Anchors::Top),
            contains(request.anchors, Anchors::Bottom),
            c.top,
            c.bottom,
            c.centerY,
            c.height};
}

std::int64_t edgePosition(const EdgeConstraint& edge, std::int64_t parent) noexcept
{
    // Not a number compares false with everything and ends as 0 here.
    const double ratio = edge.ratio >= -1.0 ? std::min(edge.ratio, 2.0) : (edge.ratio < -1.0 ? -1.0 : 0.0);
    return edge.offset + std::llround(static_cast<double>(parent) * ratio);
}

Placement placeByAnchors(const Axis& axis, std::int64_t parent) noexcept
{
    const std::int64_t farMargin = axis.designParent - axis.extent - axis.position;
    if (!axis.anchoredFar)
        return {axis.position, axis.extent, Grip::Near};
    if (axis.anchoredNear)
        return {axis.position, parent - axis.position - farMargin, Grip::Near};
    return {parent - axis.extent - farMargin, axis.extent, Grip::Far};
}

Placement placeByConstraints(const Axis& axis, std::int64_t parent) noexcept
{
    const std::int64_t extent = std::max<std::int64_t>(axis.fixed.set ? axis.fixed.extent : axis.extent, 0);
    if (axis.near.set && axis.far.set) {
        const std::int64_t nearEdge = edgePosition(axis.near, parent);
        const std::int64_t farEdge = edgePosition(axis.far, parent);
        return {std::min(nearEdge, farEdge), std::abs(farEdge - nearEdge), Grip::Near};
    }
    if (axis.near.set)
        return {edgePosition(axis.near, parent), extent, Grip::Near};
    if (axis.far.set)
        return {edgePosition(axis.far, parent) - extent, extent, Grip::Far};
    if (axis.center.set)
        return {edgePosition(axis.center, parent) - extent / 2, extent, Grip::Center};
    if (axis.fixed.set)
        return {axis.position, extent, Grip::Near};
    return placeByAnchors(axis, parent);
}

void growToMinimum(Placement& placement, std::int64_t minimum) noexcept
{
    const std::int64_t deficit = minimum - placement.extent;
    if (deficit > 0) {
        placement.extent = minimum;
        if (placement.grip == Grip::Far)
            placement.position -= deficit;
        else if (placement.grip == Grip::Center)
            placement.position -= deficit / 2;
    }
    placement.extent = std::max<std::int64_t>(placement.extent, 0);
}

Placement place(const Axis& axis, bool constrained, std::int64_t parent, std::int64_t minimum) noexcept
{
    Placement placement = constrained ? placeByConstraints(axis, parent) : placeByAnchors(axis, parent);
    growToMinimum(placement, minimum);
    return placement;
}

std::int32_t hintAlong(std::int64_t position, std::int64_t farMargin, bool near, bool far,
                       std::int64_t minimum) noexcept
{
    std::int64_t extent = position + minimum;
    if (far)
        extent = near ? position + minimum + farMargin : minimum + farMargin;
    return saturated(std::max<std::int64_t>({extent, position + minimum, 0}));
}

} // namespace

Rect layoutChild(const LayoutRequest& request, Size minimum, const Rect& content) noexcept
{
    const bool constrained = request.constraintsEnabled;
    const Placement x = place(horizontalAxis(request), constrained, content.width, minimum.width);
    const Placement y = place(verticalAxis(request), constrained, content.height, minimum.height);
    return {saturated(x.position + content.x), saturated(y.position + content.y), saturated(x.extent),
            saturated(y.extent)};
}

Size capturedParentSize(const Rect& design, Size parent) noexcept
{
    return largerOf(parent, {saturated(std::int64_t{design.x} + design.width),
                             saturated(std::int64_t{design.y} + design.height)});
}

Size minimumParentSizeHint(const Rect& design, Size designParent, Anchors anchors, Size minimum) noexcept
{
    const bool captured = designParent.width > 0 && designParent.height > 0;
    const auto farMargin = [captured](std::int64_t parent, std::int64_t extent, std::int64_t position) {
        return captured ? std::max<std::int64_t>(parent - extent - position, 0) : 0;
    };
    return {hintAlong(design.x, farMargin(designParent.width, design.width, design.x),
                      contains(anchors, Anchors::Left), contains(anchors, Anchors::Right), minimum.width),
            hintAlong(design.y, farMargin(designParent.height, design.height, design.y),
                      contains(anchors, Anchors::Top), contains(anchors, Anchors::Bottom), minimum.height)};
}

Size largerOf(Size left, Size right) noexcept
{
    return {std::max(left.width, right.width), std::max(left.height, right.height)};
}

Size clampedAtZero(Size size) noexcept { return {std::max(size.width, 0), std::max(size.height, 0)}; }

std::vector<Rect> coalescedDamage(const std::vector<Rect>& rects, std::int32_t limit)
{
    if (limit <= 1)
        return rects;
    std::vector<Rect> result;
    for (const Rect& rect : rects) {
        if (rect.width <= 0 || rect.height <= 0)
            continue;
        if (!result.empty()) {
            Rect& last = result.back();
            const bool continues = last.x == rect.x && last.width == rect.width &&
                                   std::int64_t{last.y} + last.height == rect.y && last.height < limit;
            if (continues) {
                last.height = saturated(std::int64_t{last.height} + rect.height);
                continue;
            }
        }
        result.push_back(rect);
    }
    return result;
}

} // namespace vela
