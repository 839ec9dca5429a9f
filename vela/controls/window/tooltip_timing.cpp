#include "vela/controls/window/tooltip_timing.h"

namespace vela {

void TooltipTiming::pointerAt(const Control* control, Point position, std::uint64_t now) noexcept
{
    if (control != control_)
        state_ = State::Resting;
    else if (position == position_ || state_ != State::Resting)
        return;
    control_ = control;
    position_ = position;
    since_ = now;
}

void TooltipTiming::dismiss() noexcept { state_ = State::Dismissed; }

void TooltipTiming::forget(const Control& control) noexcept
{
    if (control_ == &control)
        control_ = nullptr;
}

const Control* TooltipTiming::due(std::uint64_t now, std::uint32_t delay) noexcept
{
    if (isWaiting() && now - since_ >= delay)
        state_ = State::Shown;
    return state_ == State::Shown ? control_ : nullptr;
}

} // namespace vela
