#include "vela/render/layers/layer_bounds.h"

#include "vela/render/layers/inner_shadow.h"
#include "vela/render/pixels/length_limits.h"
#include "vela/render/shapes/shape.h"
#include "vela/render/shapes/shape_rects.h"

#include <algorithm>

namespace vela {
namespace {

// The rectangle without a hollow in it.
LayerBounds frameAround(const Rect& rect, const Rect& hollow)
{
    LayerBounds bounds;
    if (const Rect hole = intersection(rect, hollow); !isEmpty(hole))
        visitFrame(rect, hole, [&bounds](const Rect& side) { bounds.add(side); });
    else
        bounds.add(rect);
    return bounds;
}

// A large rectangle of the shape's pixels: shapes are convex, so what two rows have in common all rows
// between them have.
Rect coveredBox(ShapeKind kind, Size size)
{
    std::int32_t top =
        std::max(cornerDiameter(kind, size.width, size.height) / 2, cornerCut(kind, size.width, size.height));
    if (top == 0 && !isUpright(kind))
        top = size.height / 4;
    top = std::min(top, (size.height - 1) / 2);
    const std::int32_t bottom = size.height - 1 - top;
    const Span columns = intersect(shapeRow(kind, size, top), shapeRow(kind, size, bottom));
    return {columns.begin, top, columns.length(), bottom + 1 - top};
}

// How far an antialiased outline may lie from the mask's, in whole pixels.
constexpr std::int32_t kEdge = 2;

} // namespace

LayerBounds layerBounds(const PaintStep& step, const Coverage& coverage, const SurfaceStyle& style)
{
    const Size size = coverage.size();
    const Rect whole{0, 0, size.width, size.height};
    if (step.layer == SurfaceLayer::Border || step.layer == SurfaceLayer::Outline)
        return frameAround(
            whole, grownBy(coveredBox(coverage.shape(), size), -(limitedLength(step.penWidth) + kEdge)));
    // A shadow that follows a slanted outline may lie anywhere, but then the surface is small. Others leave
    // pixels free that are at least the shadow's size away from every edge.
    if (step.layer == SurfaceLayer::InnerShadow && innerShadowReach(coverage) != InnerShadowReach::Outline)
        return frameAround(whole, grownBy(whole, -std::max(limitedLength(style.innerShadowSize), 0)));
    return frameAround(whole, {});
}

LayerBounds haloBounds(const PaintStep& step, const Rect& hidden)
{
    return frameAround({0, 0, step.rect.width, step.rect.height},
                       movedBy(hidden, {-step.rect.x, -step.rect.y}));
}

Rect solidBox(ShapeKind kind, Size size, SurfaceEdge edge)
{
    constexpr std::int64_t kWorthwhile = 16'384;
    const Rect box = coveredBox(kind, size);
    const bool isExact = edge == SurfaceEdge::Exact || isUpright(kind);
    return std::int64_t{box.width} * box.height < kWorthwhile ? Rect{} : grownBy(box, isExact ? 0 : -kEdge);
}

} // namespace vela
