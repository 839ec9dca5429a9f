#include "vela/controls/tree/pointer_clock.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

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

std::int32_t WheelBurst::turn(const ScrollAcceleration& style, std::uint32_t now) noexcept
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

void TooltipClock::pointerAt(const Control* control, Point position, std::uint64_t now) noexcept
{
    if (control != control_)
        state_ = State::Resting;
    else if (position == position_ || state_ != State::Resting)
        return;
    control_ = control;
    position_ = position;
    since_ = now;
}

void TooltipClock::dismiss() noexcept { state_ = State::Dismissed; }

void TooltipClock::forget(const Control& control) noexcept
{
    if (control_ == &control)
        control_ = nullptr;
}

const Control* TooltipClock::due(std::uint64_t now, std::uint32_t delay) noexcept
{
    if (isWaiting() && now - since_ >= delay)
        state_ = State::Shown;
    return state_ == State::Shown ? control_ : nullptr;
}

Rect tooltipPlacement(Size size, Point pointer, std::int32_t below, std::int32_t above,
                      const Rect& area) noexcept
{
    const std::int32_t right = area.x + std::max(area.width - size.width, 0);
    const std::int32_t bottom = area.y + std::max(area.height - size.height, 0);
    std::int32_t y = pointer.y + below;
    if (y > bottom)
        y = pointer.y - above - size.height;
    return {std::clamp(pointer.x, area.x, right), std::clamp(y, area.y, bottom), size.width, size.height};
}

} // namespace vela
