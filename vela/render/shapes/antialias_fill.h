// The inner loop of antialiased drawing: a colour as strong as a function of the pixel's centre says.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/pixels/simd.h"

#include <array>

namespace vela::antialias {

// A pixel whose centre lies half a pixel inside the outline is covered wholly, one half a pixel outside not
// at all.
inline simd::Float4 coverageAt(simd::Float4 distance) noexcept
{
    return simd::min(simd::max(distance + simd::splat(0.5F), simd::Float4{}), simd::splat(1.0F));
}

// Calls coverage(x, y) -> 0 to 1 for four pixel centres at a time and writes the colour that strongly.
template <typename CoverageAt>
void fill(const LayerTarget& target, Color color, std::uint8_t alpha, CoverageAt&& coverage)
{
    std::array<Pixel, 256> shades;
    for (unsigned i = 0; i < shades.size(); ++i)
        shades[i] = premultiplied(color, i * alpha / 255);
    const Rect visible = target.visible();
    for (std::int32_t row = 0; row < visible.height; ++row) {
        const float y = static_cast<float>(visible.y + row) + 0.5F;
        simd::writeInFours(
            target.view.row(row), visible.x, visible.x + visible.width, [&](std::int32_t column) {
                const simd::Float4 strength =
                    coverage(simd::pixelCentres(column), y) * simd::splat(255.0F) + simd::splat(0.5F);
                return simd::lookUp(shades.data(), simd::truncated(strength));
            });
    }
}

} // namespace vela::antialias
