#include "vela/controls/tree/moving_lights.h"

#include "vela/controls/tree/control.h"
#include "vela/render/materials/material_clock.h"

#include <algorithm>

namespace vela {
namespace {

// A whole dialog is painted anew for each picture. On a fast machine a picture for every tick of the timer
// stays below this share of a core; elsewhere there are fewer pictures rather than a busier processor. It
// leaves half as much again to the system, which brings the picture to the screen: together less than three
// per cent.
constexpr std::uint32_t kMostPerThousand = 18;

// A window that was not ticked for long, asleep with its machine, goes on where it was.
constexpr std::uint32_t kLongestStep = 1000;

bool hasLight(const Control& control)
{
    const SurfaceStyle* const surface = control.paintedSurface();
    return surface && hasMovingLight(*surface);
}

} // namespace

bool MovingLights::tick(std::uint32_t elapsed, PerformanceProfile profile) noexcept
{
    const bool changed = profile != profile_;
    profile_ = profile;
    waited_ += std::min(elapsed, kLongestStep);
    const bool moves = profile == PerformanceProfile::Full && waited_ >= interval_;
    if (moves) {
        time_ += std::min(waited_, kLongestStep);
        waited_ = 0;
        due_ = true;
    }
    return moves || changed;
}

void MovingLights::painted(std::uint32_t microseconds) noexcept
{
    interval_ = microseconds / kMostPerThousand; // microseconds over thousandths are milliseconds
    due_ = false;
}

bool showsMovingLight(const Control& control)
{
    if (!control.isVisible())
        return false;
    const auto& children = control.children();
    return hasLight(control) || std::any_of(children.begin(), children.end(),
                                            [](const Control* child) { return showsMovingLight(*child); });
}

void repaintMovingLights(Control& control)
{
    if (!control.isVisible())
        return;
    if (hasLight(control))
        control.invalidate(InvalidationReason::State);
    for (Control* child : control.children())
        repaintMovingLights(*child);
}

} // namespace vela
