// The surfaces that a control paints, for whoever asks how far they reach.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/surface_style.h"

#include <functional>
#include <optional>

namespace vela {

struct PaintedSurface {
    const SurfaceStyle& style;
    Rect rect;                  // local pixels
    bool isShown = true;        // false: in another state of its control
    std::optional<Rect> clip{}; // local pixels, outside of which nothing of it is painted
};

using SurfaceVisitor = std::function<void(const PaintedSurface&)>;

// Only glow and shadow lie around a surface.
constexpr bool paintsAround(const SurfaceStyle& style) noexcept { return style.showGlow || style.showShadow; }

// Where anything of it is painted, in local pixels.
Rect reachOf(const PaintedSurface& surface);

} // namespace vela
