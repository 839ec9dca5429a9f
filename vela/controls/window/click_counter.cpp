#include "vela/controls/window/click_counter.h"

#include <cstdlib>

namespace vela {

std::int32_t ClickCounter::press(Point position, std::uint64_t now, std::uint32_t doubleClickTime,
                                 Size slop) noexcept
{
    const auto near = [](std::int32_t a, std::int32_t b, std::int32_t extent) {
        return std::llabs(std::int64_t{a} - b) * 2 <= extent;
    };
    const bool follows = clicks_ > 0 && clicks_ < 3 && now - time_ <= doubleClickTime &&
                         near(position.x, position_.x, slop.width) &&
                         near(position.y, position_.y, slop.height);
    clicks_ = follows ? clicks_ + 1 : 1;
    if (!follows)
        position_ = position;
    time_ = now;
    return clicks_;
}

} // namespace vela
