#include "vela/render/material_clock.h"

#include "vela/render/material_constants.h"

namespace vela {
namespace {

std::uint64_t& clock() noexcept
{
    static std::uint64_t time = 0;
    return time;
}

} // namespace

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
    constexpr std::int64_t kTurn = 360 * 1000; // degrees a second times milliseconds
    constexpr std::int64_t kOrbit = 100 * kTurn;
    const std::int64_t moved =
        style.animationSpeed % kOrbit * (static_cast<std::int64_t>(time % kOrbit)) % kOrbit;
    return static_cast<float>(moved > 0 ? moved : moved + kOrbit) / static_cast<float>(kTurn);
}

std::uint64_t materialTime() noexcept { return clock(); }

void advanceMaterialTime(std::uint32_t milliseconds) noexcept { clock() += milliseconds; }

} // namespace vela
