// Limits of lengths. Skins choose them freely: before one enters a sum it is limited here, so that no sum
// overflows.
#pragma once

#include "vela/theme/records/surface_style.h"

#include <algorithm>
#include <cstdint>

namespace vela {

// Further than any screen reaches.
inline constexpr std::int32_t kLongestLength = 1 << 20;

constexpr std::int32_t limitedLength(std::int32_t length) noexcept
{
    return std::clamp(length, -kLongestLength, kLongestLength);
}

constexpr Insets limitedInsets(const Insets& insets) noexcept
{
    return {limitedLength(insets.left), limitedLength(insets.top), limitedLength(insets.right),
            limitedLength(insets.bottom)};
}

} // namespace vela
