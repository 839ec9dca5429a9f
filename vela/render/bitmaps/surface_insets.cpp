#include "vela/render/bitmaps/surface_insets.h"

#include "vela/render/pixels/length_limits.h"
#include "vela/theme/fields/record_scale.h"

namespace vela {

Insets insetsOf(const SurfaceStyle& style, PartInsets part, std::int32_t dpi) noexcept
{
    if (!style.geometry)
        return {};
    const SurfaceGeometry& geometry = *style.geometry;
    Insets insets = limitedInsets(geometry.*part == Insets{} ? geometry.safeInsets : geometry.*part);
    for (std::int32_t Insets::*const side : {&Insets::left, &Insets::top, &Insets::right, &Insets::bottom})
        insets.*side = scaledLength(insets.*side, dpi);
    return insets;
}

} // namespace vela
