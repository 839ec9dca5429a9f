#include "vela/render/layers/noise.h"

#include "vela/render/pixels/simd.h"
#include "vela/render/pixels/surface_mapping.h"

#include <array>

namespace vela {
namespace {

// The hash for one position or for four: Number is a 32-bit word or a vector of them.
template <typename Number>
Number hashX(Number x, std::uint32_t seed) noexcept
{
    return (x + ((seed << 6) + (seed >> 2) + 0x9E3779B9U)) ^ seed;
}

template <typename Number>
Number hashXY(Number hashedX, std::uint32_t y) noexcept
{
    Number hash = (((hashedX << 6) + (hashedX >> 2) + 0x85EBCA6BU) + y) ^ hashedX;
    hash ^= hash >> 16;
    hash *= 0x7FEB352DU;
    hash ^= hash >> 15;
    hash *= 0x846CA68BU;
    hash ^= hash >> 16;
    return hash & 0xFFU;
}

} // namespace

std::uint32_t noiseAt(std::uint32_t x, std::uint32_t y, std::uint32_t seed) noexcept
{
    return hashXY(hashX(x, seed), y);
}

void fillNoise(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style,
               Point surfaceOrigin)
{
    std::array<Pixel, 256> grains;
    for (unsigned n = 0; n < grains.size(); ++n)
        grains[n] = premultiplied(style.noise, n * style.noiseOpacity / 255);

    // Mapping only moves the grain, so the first pixel's place gives all others.
    const Point first = mapSurfacePoint(style, surfaceOrigin, 0, 0).position;
    const auto left = static_cast<std::uint32_t>(first.x);
    const auto top = static_cast<std::uint32_t>(first.y);
    paintCovered(target, coverage, [&](Pixel* out, Span run, std::int32_t y) {
        const std::uint32_t row = top + static_cast<std::uint32_t>(y);
        simd::writeInFours(out, run.begin, run.end, [&](std::int32_t x) {
            const simd::UInt4 columns =
                simd::splat(left + static_cast<std::uint32_t>(x)) + simd::UInt4{0, 1, 2, 3};
            const simd::UInt4 grain = hashXY(hashX(columns, style.noiseSeed), row);
            return simd::lookUp(grains.data(), reinterpret_cast<simd::Int4>(grain));
        });
    });
}

} // namespace vela
