// When a tooltip is due. Times are milliseconds of any clock that does not go back.
#pragma once

#include "vela/geometry.h"

#include <cstdint>

namespace vela {

class Control;

// A tooltip is due once the pointer has rested on a control; after that it may move about on it. A dismissed
// one stays away until the pointer has left the control.
class TooltipTiming {
public:
    // `control` is the one with a hint under the pointer, or null. Forgotten, never used, when it goes away.
    void pointerAt(const Control* control, Point position, std::uint64_t now) noexcept;
    void dismiss() noexcept;
    void forget(const Control& control) noexcept;

    // The control whose tooltip belongs on the screen now; null for none.
    const Control* due(std::uint64_t now, std::uint32_t delay) noexcept;

private:
    enum class State : std::uint8_t { Resting, Shown, Dismissed };

    bool isWaiting() const noexcept { return control_ && state_ == State::Resting; }

    const Control* control_ = nullptr;
    Point position_;
    std::uint64_t since_ = 0;
    State state_ = State::Resting;
};

} // namespace vela
