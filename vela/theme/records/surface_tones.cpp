#include "vela/theme/records/surface_tones.h"

namespace vela {
namespace {

// As the painter blends: channel by channel on bytes.
Color blended(Color over, Color under, std::uint8_t opacity) noexcept
{
    const auto channel = [opacity](std::uint8_t top, std::uint8_t bottom) {
        return static_cast<std::uint8_t>((top * opacity + bottom * (255 - opacity) + 127) / 255);
    };
    return rgb(channel(redOf(over), redOf(under)), channel(greenOf(over), greenOf(under)),
               channel(blueOf(over), blueOf(under)));
}

} // namespace

Tones facesOf(const SurfaceStyle& surface, const Tones& under) noexcept
{
    if (!surface.useGradient)
        return surface.drawFill ? Tones(surface.fill) : under;
    const auto seen = [&](Color color) {
        Tones tones = blended(color, under.darkest, surface.opacity);
        tones.include(blended(color, under.lightest, surface.opacity));
        return tones;
    };
    Tones tones = seen(surface.gradientStart);
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
