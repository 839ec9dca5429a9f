// Lights that move within the materials of a window. They are decoration, so they take a small share of the
// processor at the most, whatever the window's size and the machine, and rest where animations are not
// wanted.
#pragma once

#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela {

class Control;

// The time that a window's lights show, and when their next picture is due.
class MovingLights {
public:
    // Milliseconds since the last tick of the window's timer. True when everything that shows lights is to be
    // painted: they moved on, or the profile is another.
    bool tick(std::uint32_t elapsed, PerformanceProfile profile) noexcept;
    // How long the painting took that the tick asked for.
    void painted(std::uint32_t microseconds) noexcept;
    bool isPaintingDue() const noexcept { return due_; }

    std::uint64_t time() const noexcept { return time_; }
    PerformanceProfile profile() const noexcept { return profile_; }
    void setProfile(PerformanceProfile profile) noexcept { profile_ = profile; }

private:
    std::uint64_t time_ = 0;
    std::uint32_t waited_ = 0;
    std::uint32_t interval_ = 0;
    PerformanceProfile profile_ = PerformanceProfile::Full;
    bool due_ = false;
};

// Whether any control that can be seen is painted with a light that moves.
bool showsMovingLight(const Control& control);
// Invalidates those that are, each with what lies on it.
void repaintMovingLights(Control& control);

} // namespace vela
