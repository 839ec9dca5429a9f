// Terms that several materials have in common, as functions of a row and a column.
#pragma once

#include "vela/render/materials/material_scene.h"

namespace vela {

inline simd::Float4 fallingOff(simd::Float4 distance, float steepness, float exponent) noexcept
{
    return simd::pow(1.0F - distance * steepness, exponent);
}

// How much a pixel is at the surface's edge: 1 there, less inwards. Distances shrink monotonously with the
// nearer edge, so the larger of the column's and the row's share is that of the pixel.
class EdgeLight {
public:
    EdgeLight(const MaterialScene& scene, float steepness, float exponent)
        : steepness_(steepness), exponent_(exponent),
          columns_(scene.perColumn([&](simd::Float4, simd::Float4 texture) { return along(texture); }))
    {
    }

    void beginRow(const MaterialRow& row) noexcept { row_ = along(row.texture); }
    simd::Float4 at(std::size_t column) const noexcept
    {
        return simd::max(simd::load(&columns_[column]), row_);
    }

private:
    simd::Float4 along(simd::Float4 texture) const noexcept
    {
        return fallingOff(simd::min(texture, 1.0F - texture), steepness_, exponent_);
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
    Wave(const MaterialScene& scene, float perPixelX, float perPixelY, float start)
        : perPixelY_(perPixelY), start_(start), sines_(scene.perColumn([&](simd::Float4 pixel, simd::Float4) {
              return simd::sin(pixel * perPixelX);
          })),
          cosines_(
              scene.perColumn([&](simd::Float4 pixel, simd::Float4) { return simd::cos(pixel * perPixelX); }))
    {
    }

    void beginRow(const MaterialRow& row) noexcept
    {
        sine_ = simd::sin(row.pixel * perPixelY_ + start_);
        cosine_ = simd::cos(row.pixel * perPixelY_ + start_);
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
