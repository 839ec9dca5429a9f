#include "vela/render/shapes/antialias.h"

#include "vela/render/shapes/antialias_fill.h"
#include "vela/render/shapes/signed_distance.h"

#include <algorithm>

namespace vela {

using simd::Float4;

void fillAntialiased(const LayerTarget& target, ShapeKind kind, const Rect& rect, Color color,
                     std::uint8_t alpha)
{
    withSignedDistance(kind, rect, [&](const auto& edge) {
        antialias::fill(target, color, alpha,
                        [&](Float4 x, float y) { return antialias::coverageAt(edge.at(x, y).distance); });
    });
}

void strokeAntialiased(const LayerTarget& target, ShapeKind kind, const Rect& rect, float width, Color color,
                       float depth)
{
    withSignedDistance(kind, rect, [&](const auto& edge) {
        antialias::fill(target, color, 255, [&](Float4 x, float y) {
            const Float4 distance = edge.at(x, y).distance - simd::splat(depth);
            return antialias::coverageAt(distance) - antialias::coverageAt(distance - simd::splat(width));
        });
    });
}

namespace {

Pixel scaled(Pixel pixel, float amount) noexcept
{
    const auto factor = static_cast<unsigned>(amount * 256);
    const Pixel alphaAndGreen = (pixel >> 8 & 0xFF00FF) * factor & 0xFF00FF00;
    return alphaAndGreen | ((pixel & 0xFF00FF) * factor >> 8 & 0xFF00FF);
}

} // namespace

// The end is that of the whole shape, moved to the left.
void cutToProgress(const LayerTarget& target, ShapeKind kind, const Rect& rect, float end)
{
    const Rect visible = target.visible();
    const float shift = static_cast<float>(rect.x + rect.width) - end;
    withSignedDistance(kind, rect, [&](const auto& edge) {
        for (std::int32_t row = 0; row < visible.height; ++row) {
            Pixel* const pixels = target.view.row(row);
            const float y = static_cast<float>(visible.y + row) + 0.5F;
            for (std::int32_t x = 0; x < visible.width; x += simd::kLanes) {
                const Float4 centres = simd::pixelCentres(visible.x + x);
                const Float4 covered =
                    antialias::coverageAt(edge.at(centres + simd::splat(shift), y).distance);
                for (std::int32_t lane = 0; lane < std::min(simd::kLanes, visible.width - x); ++lane)
                    pixels[x + lane] = scaled(pixels[x + lane], covered[lane]);
            }
        }
    });
}

} // namespace vela
