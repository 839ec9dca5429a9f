// The noise layer: grain, a fixed function of seed and position, so a surface always shows the same grain.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// 0 to 255. Positions are taken modulo 2^32.
std::uint32_t noiseAt(std::uint32_t x, std::uint32_t y, std::uint32_t seed) noexcept;

// surfaceOrigin is the surface's position in its window, for grain that is continuous across it.
void fillNoise(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style,
               Point surfaceOrigin);

} // namespace vela
