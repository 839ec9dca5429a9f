// Four numbers at a time, for the pixel layers. Arithmetic is the compiler's own on vector types; the few
// steps it has no spelling for are SSE2, which every x64 processor has, with a plain form for other machines.
// AVX stays out: the Windows toolchain does not align stacks for it.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

#include <cmath>
#include <cstddef>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// Not where memory is watched: the sanitizer cannot see into the processor's own fill.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELA_WATCHED_MEMORY
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define VELA_WATCHED_MEMORY
#endif
#if defined(__x86_64__) && !defined(VELA_WATCHED_MEMORY)
#define VELA_STRING_FILL
#endif

namespace vela::simd {

using Float4 [[gnu::vector_size(16)]] = float;
using Int4 [[gnu::vector_size(16)]] = std::int32_t;
using UInt4 [[gnu::vector_size(16)]] = std::uint32_t;

inline constexpr int kLanes = 4;

inline Float4 splat(float value) noexcept { return Float4{value, value, value, value}; }
inline Int4 splat(std::int32_t value) noexcept { return Int4{value, value, value, value}; }
inline UInt4 splat(std::uint32_t value) noexcept { return UInt4{value, value, value, value}; }

inline Float4 load(const float* from) noexcept
{
    Float4 four;
    std::memcpy(&four, from, sizeof four);
    return four;
}

inline void store(float* to, Float4 four) noexcept { std::memcpy(to, &four, sizeof four); }

inline Int4 truncated(Float4 value) noexcept { return __builtin_convertvector(value, Int4); }
inline Float4 toFloat(Int4 value) noexcept { return __builtin_convertvector(value, Float4); }

// A column and the three to its right. Beyond the last number there is they begin again: such columns lie
// beyond every surface.
inline Int4 columnsFrom(std::int32_t column) noexcept
{
    return reinterpret_cast<Int4>(splat(static_cast<std::uint32_t>(column)) + UInt4{0, 1, 2, 3});
}

// The x of their pixels' centres.
inline Float4 pixelCentres(std::int32_t column) noexcept
{
    return toFloat(columnsFrom(column)) + splat(0.5F);
}

inline Float4 sqrt(Float4 value) noexcept
{
#if defined(__SSE2__)
    return _mm_sqrt_ps(value);
#else
    return Float4{std::sqrt(value[0]), std::sqrt(value[1]), std::sqrt(value[2]), std::sqrt(value[3])};
#endif
}

inline Float4 min(Float4 a, Float4 b) noexcept { return a < b ? a : b; }
inline Float4 max(Float4 a, Float4 b) noexcept { return a > b ? a : b; }
inline Float4 abs(Float4 value) noexcept { return max(value, -value); }

// Four pixels from their channels: blue, green, red, alpha in the lanes of each, 0 to 255.
inline void storeChannels(Pixel* out, Int4 first, Int4 second, Int4 third, Int4 fourth) noexcept
{
#if defined(__SSE2__)
    const __m128i low = _mm_packs_epi32(reinterpret_cast<__m128i>(first), reinterpret_cast<__m128i>(second));
    const __m128i high = _mm_packs_epi32(reinterpret_cast<__m128i>(third), reinterpret_cast<__m128i>(fourth));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(low, high));
#else
    const Int4 pixels[] = {first, second, third, fourth};
    for (int i = 0; i < kLanes; ++i)
        out[i] = static_cast<Pixel>(pixels[i][0] | pixels[i][1] << 8 | pixels[i][2] << 16 |
                                    static_cast<std::int32_t>(static_cast<Pixel>(pixels[i][3]) << 24));
#endif
}

// Each channel for itself, at most 255.
inline UInt4 addSaturated(UInt4 a, UInt4 b) noexcept
{
#if defined(__SSE2__)
    return reinterpret_cast<UInt4>(_mm_adds_epu8(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
#else
    using Byte16 [[gnu::vector_size(16)]] = std::uint8_t;
    const auto first = reinterpret_cast<Byte16>(a);
    const Byte16 sum = first + reinterpret_cast<Byte16>(b);
    return reinterpret_cast<UInt4>(sum | reinterpret_cast<Byte16>(sum < first));
#endif
}

// Four pixels of which at least `left` exist, at least one; those beyond are transparent.
inline UInt4 loadPixels(const Pixel* from, std::int32_t left) noexcept
{
    UInt4 four{};
    if (left >= kLanes)
        std::memcpy(&four, from, sizeof four);
    else
        std::memcpy(&four, from, static_cast<std::size_t>(left) * sizeof(Pixel));
    return four;
}

// Four pixels from their channels: a lane for each pixel, 0 to 255, rounded to the nearest level.
inline UInt4 packedPixels(Float4 blue, Float4 green, Float4 red, Float4 alpha) noexcept
{
    const auto level = [](Float4 value) { return truncated(value + 0.5F); };
    const Int4 pixels = level(blue) | level(green) << 8 | level(red) << 16 | level(alpha) << 24;
    return reinterpret_cast<UInt4>(pixels);
}

inline void store(Pixel* out, UInt4 pixels) noexcept { std::memcpy(out, &pixels, sizeof pixels); }

inline void fillPixels(Pixel* out, std::ptrdiff_t count, Pixel pixel) noexcept
{
    const UInt4 four = splat(pixel);
    std::ptrdiff_t i = 0;
    constexpr std::ptrdiff_t kLine = 16; // the pixels of a cache line
#if defined(VELA_STRING_FILL)
    // The processor's own fill does not read memory before it writes it, which halves the traffic. It wants
    // to start at a cache line, and below some thousand bytes it takes longer to start than to write.
    constexpr std::ptrdiff_t kWorthStarting = 384;
    if (count >= kWorthStarting) {
        for (; i < kLine; i += kLanes)
            store(out + i, four);
        i = kLine -
            static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(out) / sizeof(Pixel) % kLine);
        Pixel* line = out + i;
        auto left = static_cast<std::size_t>(count - i);
        __asm__ volatile("rep stosl" : "+D"(line), "+c"(left) : "a"(pixel) : "memory");
        return;
    }
#endif
    for (; count - i >= kLine; i += kLine)
        for (std::ptrdiff_t lane = 0; lane < kLine; lane += kLanes)
            store(out + i + lane, four);
    for (; count - i >= kLanes; i += kLanes)
        store(out + i, four);
    for (; i < count; ++i)
        out[i] = pixel;
}

// Writes pixels four at a time: four(column) gives those of the columns from there on. The last group may
// reach past the end; what is beyond is dropped.
template <typename Four>
void writeInFours(Pixel* out, std::int32_t begin, std::int32_t end, Four&& four)
{
    std::int32_t column = begin;
    for (; end - column >= kLanes; column += kLanes)
        store(out + (column - begin), four(column));
    if (column < end) {
        const UInt4 last = four(column);
        std::memcpy(out + (column - begin), &last, static_cast<std::size_t>(end - column) * sizeof(Pixel));
    }
}

inline UInt4 lookUp(const Pixel* table, Int4 index) noexcept
{
    return UInt4{table[index[0]], table[index[1]], table[index[2]], table[index[3]]};
}

} // namespace vela::simd
