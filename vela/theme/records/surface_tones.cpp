#include "vela/theme/records/surface_tones.h"

namespace vela {
namespace {

// As the painter blends: channel by channel on bytes.
Color blended(Color source, Color backdrop, std::uint8_t opacity) noexcept
{
    const auto channel = [opacity](std::uint8_t top, std::uint8_t bottom) {
        return static_cast<std::uint8_t>((top * opacity + bottom * (255 - opacity) + 127) / 255);
    };
    return rgb(channel(redOf(source), redOf(backdrop)), channel(greenOf(source), greenOf(backdrop)),
               channel(blueOf(source), blueOf(backdrop)));
}

} // namespace

ToneRange surfaceTones(const SurfaceStyle& surface, const ToneRange& backdrop) noexcept
{
    if (!surface.useGradient)
        return surface.drawFill ? ToneRange(surface.fill) : backdrop;
    const auto seen = [&](Color color) {
        ToneRange tones = blended(color, backdrop.darkest, surface.opacity);
        tones.include(blended(color, backdrop.lightest, surface.opacity));
        return tones;
    };
    ToneRange tones = seen(surface.gradientStart);
    // Halfway between two colours of one lightness lies a darker one, so the stops alone do not tell.
    const auto run = [&](Color from, Color to) {
        for (const int part : {64, 128, 192, 255})
            tones.include(seen(blended(to, from, static_cast<std::uint8_t>(part))));
    };
    if (surface.useGradientMid)
        run(surface.gradientStart, surface.gradientMid);
    run(surface.useGradientMid ? surface.gradientMid : surface.gradientStart, surface.gradientEnd);
    return tones;
}

} // namespace vela
