#include "vela/render/shapes/antialias.h"

#include "vela/render/shapes/antialias_fill.h"
#include "vela/render/shapes/signed_distance.h"

#include <algorithm>

namespace vela {

using simd::Float4;

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

void fillDownTo(const LayerTarget& target, ShapeKind kind, const Rect& rect, float depth, Color color)
{
    withSignedDistance(kind, rect, [&](const auto& edge) {
        antialias::fill(target, color, 255, [&](Float4 x, float y) {
            return simd::splat(1.0F) - antialias::coverageAt(edge.at(x, y).distance - simd::splat(depth));
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

void cutToShape(const LayerTarget& target, ShapeKind kind, const Rect& rect)
{
    cutToProgress(target, kind, rect, static_cast<float>(rect.width));
}

// The end is that of the whole shape, moved to the left. Most pixels lie deep inside and stay as they are.
void cutToProgress(const LayerTarget& target, ShapeKind kind, const Rect& rect, float end)
{
    const Rect visible = target.visible();
    const std::int32_t last = visible.x + visible.width;
    const float shift = static_cast<float>(rect.x) + static_cast<float>(rect.width) - end;
    withSignedDistance(kind, rect, [&](const auto& edge) {
        for (std::int32_t row = 0; row < visible.height; ++row) {
            Pixel* const pixels = target.view.row(row);
            const float y = static_cast<float>(visible.y + row) + 0.5F;
            const auto cut = [&](std::int32_t begin, std::int32_t finish) {
                for (std::int32_t x = begin; x < finish; x += simd::kLanes) {
                    const Float4 covered = antialias::coverageAt(
                        edge.at(simd::pixelCentres(x) + simd::splat(shift), y).distance);
                    for (std::int32_t lane = 0; lane < std::min(simd::kLanes, finish - x); ++lane) {
                        Pixel& pixel = pixels[x - visible.x + lane];
                        pixel = scaled(pixel, covered[lane]);
                    }
                }
            };
            // Centres half a pixel deep are covered wholly; a little more is asked for, as floats round.
            const InnerRange deep = edge.innerRange(0.51F, y);
            const auto column = [&](float at) {
                return static_cast<std::int32_t>(
                    std::clamp(at - shift, static_cast<float>(visible.x), static_cast<float>(last)));
            };
            const std::int32_t from = deep.low > deep.high ? last : std::min(column(deep.low) + 1, last);
            const std::int32_t to = deep.low > deep.high ? last : std::max(column(deep.high), from);
            cut(visible.x, from);
            cut(to, last);
        }
    });
}

} // namespace vela
