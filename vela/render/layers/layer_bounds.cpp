#include "vela/render/layers/layer_bounds.h"

#include "vela/render/layers/inner_shadow.h"

#include <algorithm>

namespace vela {

LayerBounds layerBounds(const PaintStep& step, const Coverage& coverage, const SurfaceStyle& style)
{
    const Size size = coverage.size();
    LayerBounds bounds;
    // A shadow that follows a slanted outline may lie anywhere, but then the surface is small.
    if (step.layer != SurfaceLayer::InnerShadow || innerShadowReach(coverage) == InnerShadowReach::Outline) {
        bounds.add({0, 0, size.width, size.height});
        return bounds;
    }
    // Pixels at least the shadow's size away from every edge are free.
    const std::int32_t deepest = (std::min(size.width, size.height) + 1) / 2;
    const std::int32_t depth = std::clamp(style.innerShadowSize, 0, deepest);
    const std::int32_t between = std::max(size.height - 2 * depth, 0);
    bounds.add({0, 0, size.width, depth});
    bounds.add({0, depth, std::min(depth, size.width), between});
    bounds.add({size.width - depth, depth, std::min(depth, size.width - depth), between});
    bounds.add({0, depth + between, size.width, size.height - depth - between});
    return bounds;
}

} // namespace vela
