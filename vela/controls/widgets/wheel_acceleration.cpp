#include "vela/controls/widgets/wheel_acceleration.h"

#include "vela/geometry.h"

#include <algorithm>
#include <utility>

namespace vela {

std::int32_t WheelAcceleration::turn(const ScrollAcceleration& style, std::uint32_t now) noexcept
{
    constexpr std::int32_t kMostTimes = 100;
    const std::int64_t since = now - std::exchange(last_, now);
    if (!style.enabled || since >= style.resetMs)
        percent_ = 100;
    else if (since <= style.fastIntervalMs)
        percent_ = std::clamp(saturated(std::int64_t{percent_} + style.strength), 100,
                              100 * std::clamp(style.maxMultiplier, 1, kMostTimes));
    return percent_;
}

} // namespace vela
