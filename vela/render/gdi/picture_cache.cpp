#include "vela/render/gdi/picture_cache.h"

#include <cstring>

namespace vela {
namespace {

constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
constexpr std::uint64_t kColors = 0x00FFFFFF00FFFFFF;

constexpr std::uint64_t hashed(std::uint64_t digest, std::uint64_t value) noexcept
{
    digest = (digest ^ value) * kOdd;
    return digest ^ digest >> 32;
}

std::uint64_t twoPixels(const Pixel* pixels) noexcept
{
    std::uint64_t both = 0;
    std::memcpy(&both, pixels, sizeof both);
    return both & kColors;
}

} // namespace

// Four sums side by side, for each step of one waits for the step before.
Backdrop backdropOf(const PixelView& pixels) noexcept
{
    std::uint64_t sums[] = {1, 2, 3, 4};
    const std::int32_t width = pixels.size.width;
    for (std::int32_t y = 0; y < pixels.size.height; ++y) {
        const Pixel* const row = pixels.row(y);
        std::int32_t x = 0;
        for (; x + 8 <= width; x += 8) {
            sums[0] = hashed(sums[0], twoPixels(row + x));
            sums[1] = hashed(sums[1], twoPixels(row + x + 2));
            sums[2] = hashed(sums[2], twoPixels(row + x + 4));
            sums[3] = hashed(sums[3], twoPixels(row + x + 6));
        }
        for (; x < width; ++x)
            sums[x % 4] = hashed(sums[x % 4], row[x] & 0xFFFFFF);
    }
    return {pixels.size, hashed(hashed(hashed(sums[0], sums[1]), sums[2]), sums[3])};
}

} // namespace vela
