#include "vela/render/materials/material_clock.h"

namespace vela {

bool hasMovingLight(const SurfaceStyle& style) noexcept
{
    return style.animationSpeed != 0 && style.material == MaterialPreset::LuminousGlass &&
           carriesMaterial(style);
}

float lightPhase(const SurfaceStyle& style, std::uint64_t time) noexcept
{
    if (!hasMovingLight(style))
        return 0;
    // The shader's light runs on an orbit of 100 turns one way and 83 the other: after them it starts anew.
    constexpr std::int64_t kTurn = 10 * 60 * 1000;
    constexpr std::int64_t kOrbit = 100 * kTurn;
    const std::int64_t moved =
        style.animationSpeed % kOrbit * (static_cast<std::int64_t>(time % kOrbit)) % kOrbit;
    return static_cast<float>(moved > 0 ? moved : moved + kOrbit) / static_cast<float>(kTurn);
}

} // namespace vela
