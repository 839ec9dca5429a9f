// Where the ring around a focused control lies: so much outside of it, with a hair of its background between
// the two. It is seen whatever the control's own colours are.
#pragma once

#include "vela/geometry.h"
#include "vela/mul_div.h"

#include <cstdint>

namespace vela {

// 96-DPI pixels: two are the least that is seen on every monitor.
inline constexpr std::int32_t kFocusRingWidth = 2;
inline constexpr std::int32_t kFocusRingGap = 1;

constexpr std::int32_t focusRingReach(std::int32_t dpi) noexcept
{
    return mulDiv(kFocusRingWidth, dpi, kDesignDpi) + mulDiv(kFocusRingGap, dpi, kDesignDpi);
}

// The rectangle that the ring around another one stays in: the points of a hexagon and the corners of a
// slanted shape make it reach further to the sides.
constexpr Rect focusRingBounds(const Rect& rect, std::int32_t dpi) noexcept
{
    const std::int32_t reach = focusRingReach(dpi);
    return {rect.x - 2 * reach, rect.y - reach, rect.width + 4 * reach, rect.height + 2 * reach};
}

} // namespace vela
