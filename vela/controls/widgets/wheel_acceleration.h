// How far a turn of the wheel scrolls.
#pragma once

#include "vela/theme/records/control_styles.h"

#include <cstdint>

namespace vela {

// Turns of the wheel that follow each other fast scroll further and further.
class WheelAcceleration {
public:
    // How far this turn scrolls, in percent of the plain step. `now` is milliseconds; the clock may wrap
    // around.
    std::int32_t turn(const ScrollAcceleration& style, std::uint32_t now) noexcept;

private:
    std::uint32_t last_ = 0;
    std::int32_t percent_ = 100;
};

} // namespace vela
