// Functions of four numbers at a time, by short polynomials: as exact as pixels of 8 bits a channel need and
// some ten times as fast as the C library. Arguments are finite.
#pragma once

#include "vela/render/pixels/simd.h"

namespace vela::simd {

// For values below 2 to the 31st in magnitude.
inline Float4 floorOf(Float4 value) noexcept
{
    const Float4 whole = toFloat(truncated(value));
    return whole - (whole > value ? splat(1.0F) : Float4{});
}

inline Float4 fractionOf(Float4 value) noexcept { return value - floorOf(value); }

inline Float4 asFloat(Int4 bits) noexcept { return reinterpret_cast<Float4>(bits); }
inline Int4 asBits(Float4 value) noexcept { return reinterpret_cast<Int4>(value); }

inline Float4 bounded(Float4 value, float low, float high) noexcept
{
    return lesser(greater(value, splat(low)), splat(high));
}

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
// pixel shows it, and numbers so small that they lose digits are slow to reckon with.
inline Float4 powerOfTwo(Float4 exponent) noexcept
{
    const Float4 limited = bounded(exponent, -80, 126);
    const Float4 whole = floorOf(limited + 0.5F);
    const Float4 rest = limited - whole;
    const Int4 scale = (truncated(whole) + splat(127)) << 23;
    return asFloat(scale) *
           polynomial(rest, 0.999999285F, 0.693121791F, 0.240247443F, 0.0559178591F, 0.00957010221F);
}

// The binary logarithm of a positive value, to 7e-6; of 0, some -127.
inline Float4 binaryLogarithm(Float4 value) noexcept
{
    constexpr std::int32_t kRootOfHalf = 0x3F3504F3; // the mantissa lies between it and twice that
    const Int4 exponent = (asBits(value) - splat(kRootOfHalf)) >> 23;
    const Float4 beyondOne = asFloat(asBits(value) - (exponent << 23)) - 1.0F;
    return toFloat(exponent) + beyondOne * polynomial(beyondOne, 1.44280946F, -0.721367359F, 0.474986076F,
                                                      -0.35763976F, 0.36139068F, -0.298072368F);
}

// A base from 0 up, to 3e-5 of the result for exponents up to 6. Below 0 the base counts as 0.
inline Float4 power(Float4 base, float exponent) noexcept
{
    return powerOfTwo(binaryLogarithm(greater(base, Float4{})) * exponent);
}

// e to the power of the value, to 3e-6 of the result and what the value itself was rounded by.
inline Float4 exponential(Float4 value) noexcept { return powerOfTwo(value * 1.44269504F); }

// The sine of a value up to some 10,000, to 2e-6.
inline Float4 sine(Float4 value) noexcept
{
    // Half turns are taken off in three steps, the first two exact for any number of them that counts.
    const Float4 halfTurns = floorOf(value * 0.318309886F + 0.5F);
    const Float4 rest =
        value - halfTurns * 3.140625F - halfTurns * 9.67502593994e-4F - halfTurns * 1.50995799e-7F;
    const Float4 sine =
        rest * polynomial(rest * rest, 0.999996603F, -0.166648284F, 0.00830632541F, -0.000183636541F);
    return asFloat(asBits(sine) ^ truncated(halfTurns) << 31);
}

inline Float4 cosine(Float4 value) noexcept { return sine(value + 1.57079633F); }

} // namespace vela::simd
