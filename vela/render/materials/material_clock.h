// Where lights that move within a material are. UI thread only.
#pragma once

#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

// Whether time changes how the surface looks: luminous glass with a light that turns.
bool hasMovingLight(const SurfaceStyle& style) noexcept;

// Turns of the light at that time, in milliseconds; the animation speed counts turns in ten minutes, negative
// ones backwards. 0 for a surface whose light rests; above 0 for all others, so the first step of an
// animation does not jump.
float lightPhase(const SurfaceStyle& style, std::uint64_t time) noexcept;

} // namespace vela
