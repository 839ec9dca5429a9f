// Functions of four numbers at a time, by the names that shaders have for them and by short polynomials: as
// exact as pixels of 8 bits a channel need and some ten times as fast as the C library. Arguments are finite.
#pragma once

#include "vela/render/pixels/simd.h"

namespace vela::simd {

// For values below 2 to the 31st in magnitude.
inline Float4 floor(Float4 value) noexcept
{
    const Float4 whole = toFloat(truncated(value));
    return whole - (whole > value ? splat(1.0F) : Float4{});
}

inline Float4 frac(Float4 value) noexcept { return value - floor(value); }

inline Float4 asFloat(Int4 bits) noexcept { return reinterpret_cast<Float4>(bits); }
inline Int4 asBits(Float4 value) noexcept { return reinterpret_cast<Int4>(value); }

inline Float4 clamp(Float4 value, float low, float high) noexcept
{
    return min(max(value, splat(low)), splat(high));
}

inline Float4 lerp(Float4 a, Float4 b, Float4 t) noexcept { return a + t * (b - a); }
inline Float4 saturate(Float4 value) noexcept { return clamp(value, 0, 1); }

// Value of the polynomial whose coefficients are given from the constant upwards.
template <typename... Rest>
inline Float4 polynomial(Float4 x, float constant, Rest... rest) noexcept
{
    if constexpr (sizeof...(rest) == 0)
        return splat(constant);
    else
        return constant + x * polynomial(x, rest...);
}

// 2 to the power of the value, to 3e-6 of the result. Below 2 to the -80th nothing is left but a trace: no
// pixel shows it, and numbers so small that they lose digits are slow to compute with.
inline Float4 exp2(Float4 exponent) noexcept
{
    const Float4 limited = clamp(exponent, -80, 126);
    const Float4 whole = floor(limited + 0.5F);
    const Float4 rest = limited - whole;
    const Int4 scale = (truncated(whole) + splat(127)) << 23;
    return asFloat(scale) *
           polynomial(rest, 0.999999285F, 0.693121791F, 0.240247443F, 0.0559178591F, 0.00957010221F);
}

// The binary logarithm of a positive value, to 7e-6; of 0, some -127.
inline Float4 log2(Float4 value) noexcept
{
    constexpr std::int32_t kRootOfHalf = 0x3F3504F3; // the mantissa lies between it and twice that
    const Int4 exponent = (asBits(value) - splat(kRootOfHalf)) >> 23;
    const Float4 beyondOne = asFloat(asBits(value) - (exponent << 23)) - 1.0F;
    return toFloat(exponent) + beyondOne * polynomial(beyondOne, 1.44280946F, -0.721367359F, 0.474986076F,
                                                      -0.35763976F, 0.36139068F, -0.298072368F);
}

// A base from 0 up, to 3e-5 of the result for exponents up to 6. Below 0 the base counts as 0.
inline Float4 pow(Float4 base, float exponent) noexcept { return exp2(log2(max(base, Float4{})) * exponent); }

// e to the power of the value, to 3e-6 of the result and what the value itself was rounded by.
inline Float4 exp(Float4 value) noexcept { return exp2(value * 1.44269504F); }

// The sine of a value up to some 10,000, to 2e-6.
inline Float4 sin(Float4 value) noexcept
{
    // Half turns are taken off in three steps, the first two exact for any number of them that counts.
    const Float4 halfTurns = floor(value * 0.318309886F + 0.5F);
    const Float4 rest =
        value - halfTurns * 3.140625F - halfTurns * 9.67502593994e-4F - halfTurns * 1.50995799e-7F;
    const Float4 sine =
        rest * polynomial(rest * rest, 0.999996603F, -0.166648284F, 0.00830632541F, -0.000183636541F);
    return asFloat(asBits(sine) ^ truncated(halfTurns) << 31);
}

inline Float4 cos(Float4 value) noexcept { return sin(value + 1.57079633F); }

} // namespace vela::simd
