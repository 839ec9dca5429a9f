#include "vela/render/layers/color_ramp.h"

#include <algorithm>
#include <limits>

namespace vela {
namespace {

using simd::Float4;
using simd::Int4;

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
void fillEvenly(Pixel* out, std::int32_t count, Int4 first, Int4 next) noexcept
{
    Int4 second = first + next;
    Int4 third = second + next;
    Int4 fourth = third + next;
    const Int4 beyond = fourth + next - first;
    const auto store = [&](Pixel* four) {
        simd::storeChannels(four, first >> 16, second >> 16, third >> 16, fourth >> 16);
    };
    Pixel* const end = out + count;
    for (; end - out >= simd::kLanes; out += simd::kLanes) {
        store(out);
        first += beyond;
        second += beyond;
        third += beyond;
        fourth += beyond;
    }
    if (out == end)
        return;
    Pixel last[simd::kLanes];
    store(last);
    std::copy_n(last, end - out, out);
}

void fillConstant(Pixel* out, std::int32_t count, Float4 channels) noexcept
{
    Pixel pixel[simd::kLanes];
    const Int4 level = simd::truncated(channels);
    simd::storeChannels(pixel, level, level, level, level);
    simd::fillPixels(out, count, pixel[0]);
}

} // namespace

// Where its columns lie: the first at start, each further one a step beyond.
struct ColorRamp::Row {
    double start;
    double step;
    double inverseStep;

    double at(std::int32_t column) const noexcept { return start + step * column; }
    // The first column, from 0 up, that has come as far as the position.
    std::int32_t firstColumnAt(double position) const noexcept
    {
        constexpr double kFarthest = std::numeric_limits<std::int32_t>::max() - 1;
        const double columns = std::clamp((position - start) * inverseStep, 0.0, kFarthest);
        const auto whole = static_cast<std::int32_t>(columns);
        return whole < columns ? whole + 1 : whole;
    }
};

ColorRamp::ColorRamp(const SurfaceStyle& style, Course course)
{
    const Float4 start = channelsOf(style.gradientStart, style.opacity);
    const Float4 middle = channelsOf(style.gradientMid, style.opacity);
    const Float4 end = channelsOf(style.gradientEnd, style.opacity);
    const double length = course == Course::Mirrored ? 0.5 : 1.0;
    add(0, start);
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

void ColorRamp::add(double position, Float4 channels)
{
    if (count_ > 0) {
        Piece& last = pieces_[count_ - 1];
        if (position > last.position)
            last.slope = (channels - last.channels) / static_cast<float>(position - last.position);
    }
    pieces_[count_].position = position;
    pieces_[count_++].channels = channels;
}

// Columns of one piece, of which the first one in the row is given. They are counted in fixed point from that
// one and, for the sums not to go astray, anew every so many columns.
void ColorRamp::fillPiece(Pixel* out, Span columns, const Piece& piece, const Row& row, std::int32_t first)
{
    const Int4 next = simd::truncated(piece.slope * static_cast<float>(row.step) * kOne);
    for (std::int32_t column = columns.begin; column < columns.end;) {
        const std::int32_t beyond = (column - first) % kLongestPiece;
        const std::int32_t count = std::min(columns.end - column, kLongestPiece - beyond);
        const Int4 counted = simd::truncated(piece.at(row.at(column - beyond)) * kOne);
        fillEvenly(out + (column - columns.begin), count, counted + next * beyond, next);
        column += count;
    }
}

void ColorRamp::fillRun(Pixel* out, Span columns, double start, double step) const
{
    if (step == 0) {
        std::size_t at = count_ - 1;
        while (at > 0 && pieces_[at].position > start)
            --at;
        return fillConstant(out, columns.length(), pieces_[at].at(at > 0 ? start : pieces_[at].position));
    }
    const Row row{start, step, 1 / step};
    const std::size_t last = count_ - 1;
    std::int32_t begin = 0;
    for (std::size_t i = 0; i <= last && begin < columns.end; ++i) {
        const std::size_t at = step > 0 ? i : last - i;
        const std::size_t border = step > 0 ? at + 1 : at; // the next piece begins where this one does
        const std::int32_t end = i < last ? row.firstColumnAt(pieces_[border].position) : columns.end;
        const Span part = intersect({begin, end}, columns);
        Pixel* const first = out + (part.begin - columns.begin);
        if (!part.empty() && (at == 0 || at == last))
            fillConstant(first, part.length(), pieces_[at].channels);
        else if (!part.empty())
            fillPiece(first, part, pieces_[at], row, begin);
        begin = std::max(begin, end);
    }
}

} // namespace vela
