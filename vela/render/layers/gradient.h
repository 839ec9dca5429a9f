// The gradient layer: two or three colours along one of eight directions or around the surface's centre.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// A direction as a linear function of the position: offset + acrossU * u + acrossV * v, u and v from 0 to 1.
struct GradientAxis {
    double offset;
    double acrossU;
    double acrossV;
};

const GradientAxis& gradientAxis(GradientDirection direction) noexcept;

// Where the pixel lies along the gradient, 0 to 1. The definition; fillGradient computes it in bulk.
double gradientParameter(GradientKind kind, GradientDirection direction, std::int32_t x, std::int32_t y,
                         std::int32_t width, std::int32_t height) noexcept;

// Colours are within one level of the definition's.
void fillGradient(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style);

} // namespace vela
