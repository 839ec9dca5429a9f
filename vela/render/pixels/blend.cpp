#include "vela/render/pixels/blend.h"

#include "vela/render/pixels/simd.h"

namespace vela {
namespace {

using simd::UInt4;
using UShort8 [[gnu::vector_size(16)]] = std::uint16_t;

// Two channels of each pixel times 0 to 255 over 255, rounded to the nearest.
UInt4 faded(UInt4 channels, UShort8 factor) noexcept
{
    const UShort8 product = reinterpret_cast<UShort8>(channels) * factor + std::uint16_t{128};
    return reinterpret_cast<UInt4>((product + (product >> 8)) >> 8);
}

UInt4 over(UInt4 source, UInt4 below) noexcept
{
    constexpr std::uint32_t kEven = 0x00FF00FF;
    const UInt4 rest = 255 - (source >> 24);
    const auto factor = reinterpret_cast<UShort8>(rest | rest << 16);
    return simd::addSaturated(source, faded(below & kEven, factor) | faded(below >> 8 & kEven, factor) << 8);
}

} // namespace

void blendOver(const PixelView& source, const PixelView& target) noexcept
{
    for (std::int32_t y = 0; y < target.size.height; ++y) {
        const Pixel* const from = source.row(y);
        Pixel* const to = target.row(y);
        simd::writeInFours(to, 0, target.size.width, [&](std::int32_t x) {
            const std::int32_t left = target.size.width - x;
            return over(simd::loadPixels(from + x, left), simd::loadPixels(to + x, left));
        });
    }
}

} // namespace vela
