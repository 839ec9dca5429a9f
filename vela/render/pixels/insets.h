// What insets leave of a rectangle.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/surface_style.h"

#include <algorithm>

namespace vela {

// No width or height below 0, however large the insets.
constexpr Rect insetBy(const Rect& rect, const Insets& insets) noexcept
{
    return {rect.x + insets.left, rect.y + insets.top, std::max(rect.width - insets.left - insets.right, 0),
            std::max(rect.height - insets.top - insets.bottom, 0)};
}

} // namespace vela
