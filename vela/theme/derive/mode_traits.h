// What tells the surface modes apart, as one table: how strongly each elevation is shaded, shadowed and
// lit, whether materials are applied, and the shapes and metrics of the mode. Builders never ask for the mode
// itself.
#pragma once

#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela::derive {

// How a surface stands in the light.
enum class Elevation : std::uint8_t {
    Container, // large and level: panels, popups, bars
    Flat,      // lies on a container without standing out: rows, chips, disabled faces
    Raised,    // buttons, thumbs, badges
    Pressed,   // what was raised, pushed in
    Sunken,    // inputs and tracks
};
inline constexpr int kElevationCount = 5;

struct ElevationTraits {
    // Oklab lightness from the fill to the lit end of its gradient; negative when the shaded end comes first.
    float shading;
    std::uint8_t light;       // percent of the theme's light and relief that a surface gets
    std::uint8_t innerShadow; // percent of the theme's inner shadow, 0 for none
    std::uint8_t shadow;      // opacity of the drop shadow, 0 for none
};

struct ModeTraits {
    bool materials;          // the theme's materials are applied
    std::uint8_t leastDepth; // the relief of lit surfaces where a theme gives them less
    std::uint8_t noiseOpacity;
    std::int32_t shadowOffset;
    ElevationTraits elevations[kElevationCount];

    ShapeKind controlShape;
    ShapeKind panelShape;
    ShapeKind trackShape;
    bool slimTracks;          // progress as a thin bar without a frame
    bool flushCaptionButtons; // caption buttons fill the bar's corner, as the system's do

    const ElevationTraits& traits(Elevation elevation) const noexcept
    {
        return elevations[static_cast<int>(elevation)];
    }
};

const ModeTraits& traitsOf(SurfaceMode mode) noexcept;

} // namespace vela::derive
