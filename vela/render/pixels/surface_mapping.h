// Where textures and noise lie on a surface: relative to it, or continuous across the window so that
// neighbouring surfaces share one texture.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

struct MappedPoint {
    Point position; // noise takes this
    Point texture;  // textures take this: folded back and forth every tile, so that they join without a seam
    friend constexpr bool operator==(const MappedPoint&, const MappedPoint&) = default;
};

// surfaceOrigin is the surface's position in its window.
MappedPoint mapSurfacePoint(const SurfaceMapping& mapping, Point surfaceOrigin, std::int32_t x,
                            std::int32_t y) noexcept;

} // namespace vela
