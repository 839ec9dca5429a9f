// Rectangles as the toolkit has them, by corner and size, and as Windows has them, by their four edges.
#pragma once

#include "vela/geometry.h"

#include <windows.h>

namespace vela {

constexpr Rect toRect(const RECT& rect) noexcept
{
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

constexpr RECT toRECT(const Rect& rect) noexcept
{
    return {rect.x, rect.y, rect.x + rect.width, rect.y + rect.height};
}

} // namespace vela
