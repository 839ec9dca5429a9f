// What insets leave of a rectangle.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/surface_style.h"

#include <algorithm>
#include <cstdint>

namespace vela {

// No width or height below 0, however large the insets.
constexpr Rect insetBy(const Rect& rect, const Insets& insets) noexcept
{
    const auto rest = [](std::int64_t length, std::int32_t before, std::int32_t behind) {
        return saturated(std::max<std::int64_t>(length - before - behind, 0));
    };
    return {saturated(std::int64_t{rect.x} + insets.left), saturated(std::int64_t{rect.y} + insets.top),
            rest(rect.width, insets.left, insets.right), rest(rect.height, insets.top, insets.bottom)};
}

} // namespace vela
