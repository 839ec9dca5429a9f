// The time of lights that move within a material. One clock for all windows, so that surfaces that look the
// same keep looking the same; it runs only while a window that can be seen advances it. UI thread only.
#pragma once

#include "vela/theme/surface_style.h"

#include <cstdint>

namespace vela {

// Whether time changes how the surface looks: luminous glass with a light that turns.
bool hasMovingLight(const SurfaceStyle& style) noexcept;

// Turns of the light at that time, in milliseconds; the animation speed counts degrees a second, negative
// ones turn backwards. 0 for a surface whose light rests; above 0 for all others, so the first step of an
// animation does not jump.
float lightPhase(const SurfaceStyle& style, std::uint64_t time) noexcept;

std::uint64_t materialTime() noexcept;
void advanceMaterialTime(std::uint32_t milliseconds) noexcept;

} // namespace vela
