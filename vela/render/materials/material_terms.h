// Terms that several materials have in common, as functions of a row and a column.
#pragma once

#include "vela/render/materials/material_input.h"

namespace vela {

// pow(max(0, 1 - distance * steepness), exponent): 1 at no distance, less beyond.
inline simd::Float4 falloff(simd::Float4 distance, float steepness, float exponent) noexcept
{
    return simd::pow(1.0F - distance * steepness, exponent);
}

// pow(max(0, 1 - edgeDistance * steepness), exponent): how much a pixel is at the surface's edge: 1 there,
// less inwards. Distances shrink monotonously with the nearer edge, so the larger of the column's and the
// row's share is that of the pixel.
class Rim {
public:
    Rim(const MaterialInput& input, float steepness, float exponent)
        : steepness_(steepness), exponent_(exponent),
          columns_(input.perColumn([&](simd::Float4, simd::Float4 tx) { return along(tx); }))
    {
    }

    void beginRow(const MaterialRow& row) noexcept { row_ = along(row.ty); }
    simd::Float4 at(std::size_t column) const noexcept
    {
        return simd::max(simd::load(&columns_[column]), row_);
    }

private:
    simd::Float4 along(simd::Float4 uv) const noexcept
    {
        return falloff(simd::min(uv, 1.0F - uv), steepness_, exponent_);
    }

    float steepness_;
    float exponent_;
    ColumnValues columns_;
    simd::Float4 row_{};
};

// The sine of a wave across the surface, from the sines of the column's and the row's share.
class Wave {
public:
    // Radians a pixel.
    Wave(const MaterialInput& input, float perPixelX, float perPixelY, float start)
        : perPixelY_(perPixelY), start_(start),
          sines_(input.perColumn(
              [&](simd::Float4 pixelX, simd::Float4) { return simd::sin(pixelX * perPixelX); })),
          cosines_(input.perColumn(
              [&](simd::Float4 pixelX, simd::Float4) { return simd::cos(pixelX * perPixelX); }))
    {
    }

    void beginRow(const MaterialRow& row) noexcept
    {
        sine_ = simd::sin(row.pixelY * perPixelY_ + start_);
        cosine_ = simd::cos(row.pixelY * perPixelY_ + start_);
    }
    simd::Float4 at(std::size_t column) const noexcept
    {
        return simd::load(&sines_[column]) * cosine_ + simd::load(&cosines_[column]) * sine_;
    }

private:
    float perPixelY_;
    float start_;
    ColumnValues sines_;
    ColumnValues cosines_;
    simd::Float4 sine_{};
    simd::Float4 cosine_{};
};

} // namespace vela
