#include "vela/render/layers/color_ramp.h"

#include <algorithm>
#include <limits>

namespace vela {
namespace {

using simd::Float4;
using simd::Int4;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int32_t kLongestPiece = 4096; // keeps what fixed-point steps add up to far below one level
constexpr float kOne = 65536.0F;             // fixed point: 16 bits below the channel's units

// What is added before rounding down. By definition an opaque colour is rounded to the nearest level, and a
// translucent one is that rounded down again, half a level less on the average; the quarter keeps within one
// level of it and the alpha exact.
float roundingOf(std::uint8_t opacity) noexcept { return opacity == 255 ? 0.5F : 0.25F; }

Float4 channelsOf(Color color, std::uint8_t opacity) noexcept
{
    const float alpha = opacity;
    return Float4{static_cast<float>(blueOf(color)), static_cast<float>(greenOf(color)),
                  static_cast<float>(redOf(color)), 255.0F} *
               (alpha / 255.0F) +
           simd::splat(roundingOf(opacity));
}

// Channels that change evenly from pixel to pixel, rounded down.
void fillEvenly(Pixel* out, std::int32_t count, Float4 from, Float4 step) noexcept
{
    Int4 first = simd::truncated(from * kOne);
    const Int4 next = simd::truncated(step * kOne);
    const Int4 second = next + next;
    const Int4 fourth = second + second;
    Pixel four[simd::kLanes];
    for (std::int32_t i = 0; i < count; i += simd::kLanes) {
        const bool whole = count - i >= simd::kLanes;
        const Int4 third = first + second;
        simd::storeChannels(whole ? out + i : four, first >> 16, (first + next) >> 16, third >> 16,
                            (third + next) >> 16);
        if (!whole)
            std::copy_n(four, count - i, out + i);
        first += fourth;
    }
}

void fillConstant(Pixel* out, std::int32_t count, Float4 channels) noexcept
{
    Pixel pixel[simd::kLanes];
    const Int4 level = simd::truncated(channels);
    simd::storeChannels(pixel, level, level, level, level);
    simd::fillPixels(out, count, pixel[0]);
}

} // namespace

// Between two stops, or beyond the outer ones where nothing changes.
struct ColorRamp::Piece {
    double low;
    double high;
    double origin; // where the channels are these
    Float4 channels;
    Float4 slope; // per unit of position
};

ColorRamp::ColorRamp(const SurfaceStyle& style, Course course)
{
    const Float4 start = channelsOf(style.gradientStart, style.opacity);
    const Float4 middle = channelsOf(style.gradientMid, style.opacity);
    const Float4 end = channelsOf(style.gradientEnd, style.opacity);
    const double length = course == Course::Mirrored ? 0.5 : 1.0;
    add(0, start);
    if (style.useGradientMid)
        add(length / 2, middle);
    add(length, end);
    if (course == Course::Once)
        return;
    if (style.useGradientMid)
        add(1 - length / 2, middle);
    add(1, start);
}

ColorRamp::Piece ColorRamp::pieceAt(double position) const
{
    int above = 0; // the first stop beyond the position
    while (above < count_ && stops_[static_cast<std::size_t>(above)].position <= position)
        ++above;
    if (above == 0)
        return {-kInfinity, stops_[0].position, 0, stops_[0].channels, Float4{}};
    const Stop& low = stops_[static_cast<std::size_t>(above - 1)];
    if (above == count_)
        return {low.position, kInfinity, low.position, low.channels, Float4{}};
    const Stop& high = stops_[static_cast<std::size_t>(above)];
    const auto length = static_cast<float>(high.position - low.position);
    return {low.position, high.position, low.position, low.channels, (high.channels - low.channels) / length};
}

void ColorRamp::fillRun(Pixel* out, std::int32_t count, double start, double step) const
{
    std::int32_t done = 0;
    while (done < count) {
        const double position = start + step * done;
        const Piece piece = pieceAt(position);
        const double limit = step > 0 ? piece.high : piece.low;
        const double room = step == 0 ? kInfinity : (limit - position) / step;
        const std::int32_t left = std::min(count - done, kLongestPiece);
        const std::int32_t length = room < left ? static_cast<std::int32_t>(room) + 1 : left;
        const Float4 from = piece.channels + piece.slope * static_cast<float>(position - piece.origin);
        const Float4 change = piece.slope * static_cast<float>(step);
        if (step == 0 || std::isinf(limit))
            fillConstant(out + done, length, from);
        else
            fillEvenly(out + done, length, from, change);
        done += length;
    }
}

} // namespace vela
