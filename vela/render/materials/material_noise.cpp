#include "vela/render/materials/material_noise.h"

namespace vela {
namespace {

using simd::Float4;
using simd::splat;

// A column's or row's share of a hash.
Float4 hash21Share(Float4 position) noexcept { return simd::frac(position * 0.1031F); }

// The shader's sum of three products, two of which share a factor: graphics drivers put it before the
// bracket, and the hash magnifies the different rounding.
Float4 hash21(Float4 x, Float4 y) noexcept
{
    const Float4 shiftedX = x + 33.33F;
    const Float4 dot = (x + y) * shiftedX + x * (y + 33.33F);
    const Float4 product = ((x + dot) + (y + dot)) * (x + dot);
    return product - simd::toFloat(simd::truncated(product)); // never negative
}

constexpr float kAmplitudes[] = {0.55F, 0.55F * 0.48F, 0.55F * 0.48F * 0.46F};
constexpr float kNextFactor[] = {2.17F, 2.03F};
constexpr float kNextOffset[][2] = {{13.1F, 7.7F}, {5.9F, 17.3F}};

Float4 nextOctave(Float4 position, std::size_t octave, int dimension) noexcept
{
    return octave < std::size(kNextFactor) ? position * kNextFactor[octave] + kNextOffset[octave][dimension]
                                           : position;
}

Float4 smoothstep(Float4 f) noexcept { return f * f * (3.0F - 2.0F * f); }

} // namespace

Hash21::Hash21(const MaterialInput& input, float seed, Place place)
    : place_(place), seed_(seed), columns_(input.perColumn([&](Float4 pixel, Float4) {
          return hash21Share(pixel * place.factor + place.stepX + seed);
      }))
{
}

void Hash21::beginRow(const MaterialRow& row) noexcept
{
    row_ = hash21Share(row.pixelY * place_.factor + place_.stepY + seed_);
}

Float4 Hash21::at(std::size_t column) const noexcept { return hash21(simd::load(&columns_[column]), row_); }

Fbm::Fbm(const MaterialInput& input, bool onPixels, float spreadX, float spreadY, float offset)
    : onPixels_(onPixels), spreadY_(spreadY), offset_(offset)
{
    for (SmoothNoise& octave : octaves_)
        for (ColumnValues* values :
             {&octave.left, &octave.right, &octave.blend, &octave.above, &octave.below})
            values->resize(input.columnCount());
    for (std::size_t column = 0; column < input.columnCount(); column += simd::kLanes) {
        Float4 x = position(input.pixelX(column), input.tx(column), spreadX);
        for (std::size_t i = 0; i < octaves_.size(); ++i) {
            octaves_[i].place(x, column);
            x = nextOctave(x, i, 0);
        }
    }
}

Fbm Fbm::onPixels(const MaterialInput& input, float spacing, float offset)
{
    return {input, true, spacing, spacing, offset};
}

Fbm Fbm::onUv(const MaterialInput& input, float pointsX, float pointsY, float offset)
{
    return {input, false, pointsX, pointsY, offset};
}

Float4 Fbm::position(Float4 pixel, Float4 uv, float spread) const noexcept
{
    return onPixels_ ? pixel / spread + offset_ : uv * spread + offset_;
}

void Fbm::SmoothNoise::place(Float4 x, std::size_t column)
{
    const Float4 point = simd::floor(x);
    simd::store(&left[column], hash21Share(point));
    simd::store(&right[column], hash21Share(point + 1.0F));
    simd::store(&blend[column], smoothstep(x - point));
}

void Fbm::SmoothNoise::fill(ColumnValues& line, float latticeY) const
{
    const Float4 y = hash21Share(splat(latticeY));
    for (std::size_t column = 0; column < line.size(); column += simd::kLanes) {
        const Float4 a = hash21(simd::load(&left[column]), y);
        const Float4 b = hash21(simd::load(&right[column]), y);
        simd::store(&line[column], simd::lerp(a, b, simd::load(&blend[column])));
    }
}

void Fbm::SmoothNoise::moveTo(Float4 y)
{
    const Float4 point = simd::floor(y);
    rowBlend = smoothstep(y - point);
    const float line = point[0];
    if (line == lineAbove)
        return;
    if (line == lineAbove + 1)
        above.swap(below);
    else
        fill(above, line);
    fill(below, line + 1);
    lineAbove = line;
}

void Fbm::beginRow(const MaterialRow& row)
{
    Float4 y = position(row.pixelY, row.ty, spreadY_);
    for (std::size_t i = 0; i < octaves_.size(); ++i) {
        octaves_[i].moveTo(y);
        y = nextOctave(y, i, 1);
    }
}

Float4 Fbm::at(std::size_t column) const noexcept
{
    Float4 value{};
    for (std::size_t i = 0; i < octaves_.size(); ++i) {
        const SmoothNoise& octave = octaves_[i];
        const Float4 above = simd::load(&octave.above[column]);
        const Float4 below = simd::load(&octave.below[column]);
        value += simd::lerp(above, below, octave.rowBlend) * kAmplitudes[i];
    }
    return value;
}

} // namespace vela
