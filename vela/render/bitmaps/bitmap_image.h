// A picture as it comes from a decoder: straight alpha, in the byte order of pixel layers.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

#include <cstddef>
#include <vector>

namespace vela {

// Larger pictures are not decoded, and all that are cached together have no more.
inline constexpr std::size_t kMostImagePixels = 64'000'000;

struct BitmapImage {
    Size size;
    std::vector<Pixel> pixels; // rows from the top, without gaps
};

// Red, green, blue and alpha of a pixel, apart.
struct Channels {
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 255;
    friend constexpr bool operator==(const Channels&, const Channels&) = default;
};

constexpr Channels channelsOf(Pixel pixel) noexcept
{
    return {static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
            static_cast<int>(pixel & 0xFF), static_cast<int>(pixel >> 24)};
}

constexpr Pixel pixelOf(const Channels& channels) noexcept
{
    return makePixel(static_cast<unsigned>(channels.red), static_cast<unsigned>(channels.green),
                     static_cast<unsigned>(channels.blue), static_cast<unsigned>(channels.alpha));
}

} // namespace vela
