#include "vela/render/pixels/surface_mapping.h"

#include <algorithm>

namespace vela {
namespace {

std::int32_t mirroredModulo(std::int64_t position, std::int32_t tile) noexcept
{
    const std::int64_t period = 2 * std::int64_t{tile};
    const std::int64_t rest = (position % period + period) % period;
    return static_cast<std::int32_t>(rest > tile ? period - rest : rest);
}

// Skins choose the offsets freely; sums wrap as the noise's own arithmetic does.
std::int32_t wrappingSum(std::int32_t a, std::int32_t b, std::int32_t c) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b) +
                                     static_cast<std::uint32_t>(c));
}

} // namespace

MappedPoint mapSurfacePoint(const SurfaceMapping& mapping, Point surfaceOrigin, std::int32_t x,
                            std::int32_t y) noexcept
{
    if (mapping.uvMapping != MappingSpace::Global)
        return {{x, y}, {x, y}};
    const std::int32_t tile = std::clamp(mapping.uvScale, 8, 8192);
    const Point world{wrappingSum(mapping.uvOffsetX, surfaceOrigin.x, x),
                      wrappingSum(mapping.uvOffsetY, surfaceOrigin.y, y)};
    return {world, {mirroredModulo(world.x, tile), mirroredModulo(world.y, tile)}};
}

} // namespace vela
