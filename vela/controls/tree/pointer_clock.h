// What depends on when and where the pointer was: the number of clicks of a press, how far a turn of the
// wheel scrolls, and the moment a tooltip is due. Times are milliseconds of any clock that does not go back.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/control_styles.h"

#include <cstdint>

namespace vela {

class Control;

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

// Turns of the wheel that follow each other fast scroll further and further.
class WheelBurst {
public:
    // How far this turn scrolls, in percent of the plain step. The clock may wrap around.
    std::int32_t turn(const ScrollAcceleration& style, std::uint32_t now) noexcept;

private:
    std::uint32_t last_ = 0;
    std::int32_t percent_ = 100;
};

// A tooltip is due once the pointer has rested on a control; after that it may move about on it. A dismissed
// one stays away until the pointer has left the control.
class TooltipClock {
public:
    // `control` is the one with a hint under the pointer, or null. Forgotten, never used, when it goes away.
    void pointerAt(const Control* control, Point position, std::uint64_t now) noexcept;
    void dismiss() noexcept;
    void forget(const Control& control) noexcept;

    // The control whose tooltip belongs on the screen now; null for none.
    const Control* due(std::uint64_t now, std::uint32_t delay) noexcept;
    // Whether a tooltip may become due without the pointer moving again.
    bool isWaiting() const noexcept { return control_ && state_ == State::Resting; }

private:
    enum class State : std::uint8_t { Resting, Shown, Dismissed };

    const Control* control_ = nullptr;
    Point position_;
    std::uint64_t since_ = 0;
    State state_ = State::Resting;
};

// Where a tooltip of that size stands: below the pointer, above it where there is no room, always inside the
// area.
Rect tooltipPlacement(Size size, Point pointer, std::int32_t below, std::int32_t above,
                      const Rect& area) noexcept;

} // namespace vela
