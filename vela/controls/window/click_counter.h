// How many clicks a press is. Times are milliseconds of any clock that does not go back.
#pragma once

#include "vela/geometry.h"

#include <cstdint>

namespace vela {

// Presses that follow each other quickly in one place count 1, 2, 3 and then start over.
class ClickCounter {
public:
    // `slop`: how far from the first press the others may lie, as a whole rectangle around it.
    std::int32_t press(Point position, std::uint64_t now, std::uint32_t doubleClickTime, Size slop) noexcept;

private:
    Point position_;
    std::uint64_t time_ = 0;
    std::int32_t clicks_ = 0;
};

} // namespace vela
