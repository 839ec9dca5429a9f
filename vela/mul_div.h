// Lengths times a ratio, as for another DPI.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vela {

// The DPI for which lengths are designed.
inline constexpr std::int32_t kDesignDpi = 96;

// a * b / c for c above 0, rounded to the nearest with halves away from zero, as the system's own MulDiv; at
// the limits of the type it stops.
constexpr std::int32_t mulDiv(std::int32_t a, std::int32_t b, std::int32_t c) noexcept
{
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t product = std::int64_t{a} * b;
    const std::int64_t half = product < 0 ? -(c / 2) : c / 2;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>((product + half) / c, Limits::min(), Limits::max()));
}

} // namespace vela
