#include "vela/render/bitmaps/surface_insets.h"

#include "vela/render/pixels/length_limits.h"

namespace vela {

Insets insetsOf(const SurfaceStyle& style, PartInsets part) noexcept
{
    if (!style.geometry)
        return {};
    const SurfaceGeometry& geometry = *style.geometry;
    return limitedInsets(geometry.*part == Insets{} ? geometry.safeInsets : geometry.*part);
}

} // namespace vela
