#include "vela/render/materials/material_noise.h"

namespace vela {
namespace {

using simd::Float4;
using simd::splat;

// A column's or row's share of a hash.
Float4 hashShare(Float4 position) noexcept { return simd::frac(position * 0.1031F); }

// The shader's sum of three products, two of which share a factor: graphics drivers put it before the
// bracket, and the hash magnifies the different rounding.
Float4 hashOf(Float4 x, Float4 y) noexcept
{
    const Float4 shiftedX = x + 33.33F;
    const Float4 mix = (x + y) * shiftedX + x * (y + 33.33F);
    const Float4 product = ((x + mix) + (y + mix)) * (x + mix);
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

Float4 smoothed(Float4 fraction) noexcept { return fraction * fraction * (3.0F - 2.0F * fraction); }

} // namespace

Grain::Grain(const MaterialScene& scene, float seed, Place place)
    : place_(place), seed_(seed), columns_(scene.perColumn([&](Float4 pixel, Float4) {
          return hashShare(pixel * place.factor + place.stepX + seed);
      }))
{
}

void Grain::beginRow(const MaterialRow& row) noexcept
{
    row_ = hashShare(row.pixel * place_.factor + place_.stepY + seed_);
}

Float4 Grain::at(std::size_t column) const noexcept { return hashOf(simd::load(&columns_[column]), row_); }

Clouds::Clouds(const MaterialScene& scene, bool onPixels, float spreadX, float spreadY, float offset)
    : onPixels_(onPixels), spreadY_(spreadY), offset_(offset)
{
    for (Octave& octave : octaves_)
        for (ColumnValues* values :
             {&octave.left, &octave.right, &octave.blend, &octave.above, &octave.below})
            values->resize(scene.columnCount());
    for (std::size_t column = 0; column < scene.columnCount(); column += simd::kLanes) {
        Float4 x = position(scene.pixelX(column), scene.textureX(column), spreadX);
        for (std::size_t i = 0; i < octaves_.size(); ++i) {
            octaves_[i].place(x, column);
            x = nextOctave(x, i, 0);
        }
    }
}

Clouds Clouds::onPixels(const MaterialScene& scene, float spacing, float offset)
{
    return {scene, true, spacing, spacing, offset};
}

Clouds Clouds::onTexture(const MaterialScene& scene, float pointsX, float pointsY, float offset)
{
    return {scene, false, pointsX, pointsY, offset};
}

Float4 Clouds::position(Float4 pixel, Float4 texture, float spread) const noexcept
{
    return onPixels_ ? pixel / spread + offset_ : texture * spread + offset_;
}

void Clouds::Octave::place(Float4 x, std::size_t column)
{
    const Float4 point = simd::floor(x);
    simd::store(&left[column], hashShare(point));
    simd::store(&right[column], hashShare(point + 1.0F));
    simd::store(&blend[column], smoothed(x - point));
}

void Clouds::Octave::fill(ColumnValues& line, float latticeY) const
{
    const Float4 y = hashShare(splat(latticeY));
    for (std::size_t column = 0; column < line.size(); column += simd::kLanes) {
        const Float4 from = hashOf(simd::load(&left[column]), y);
        const Float4 to = hashOf(simd::load(&right[column]), y);
        simd::store(&line[column], from + simd::load(&blend[column]) * (to - from));
    }
}

void Clouds::Octave::moveTo(Float4 y)
{
    const Float4 point = simd::floor(y);
    rowBlend = smoothed(y - point);
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

void Clouds::beginRow(const MaterialRow& row)
{
    Float4 y = position(row.pixel, row.texture, spreadY_);
    for (std::size_t i = 0; i < octaves_.size(); ++i) {
        octaves_[i].moveTo(y);
        y = nextOctave(y, i, 1);
    }
}

Float4 Clouds::at(std::size_t column) const noexcept
{
    Float4 value{};
    for (std::size_t i = 0; i < octaves_.size(); ++i) {
        const Octave& octave = octaves_[i];
        const Float4 above = simd::load(&octave.above[column]);
        const Float4 below = simd::load(&octave.below[column]);
        value += (above + octave.rowBlend * (below - above)) * kAmplitudes[i];
    }
    return value;
}

} // namespace vela
