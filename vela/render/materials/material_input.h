// What the shader's main function begins with, and every part of the material overlay needs: the constants by
// name and in units of their own, and where the columns and rows of a surface lie. What depends on the column
// alone is computed once per surface, what depends on the row alone once per row; only the rest is left to
// the pixels. Names are the shader's.
#pragma once

#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/simd_math.h"
#include "vela/render/shapes/shape_rows.h"

#include <vector>

namespace vela {

struct Rgb {
    float red;
    float green;
    float blue;
};

constexpr Rgb lerp(Rgb a, Rgb b, float t) noexcept
{
    return {a.red + t * (b.red - a.red), a.green + t * (b.green - a.green), a.blue + t * (b.blue - a.blue)};
}

// Strengths and opacities from 0 to 1, lengths in pixels, angles in radians.
struct MaterialParameters {
    explicit MaterialParameters(const MaterialConstants& constants) noexcept;

    Rgb tint;
    Rgb backlight;
    Rgb highlightColor; // white and black with a breath of the tint
    Rgb shadowColor;
    float strength; // 1 at 180
    float highlight;
    float reflection;
    float grainOpacity;
    float depth;
    float scale;
    float angle;
    float lightAngle;
    float lightElevation;
    float blobScale;
    float blobAngle;
    float animationPhase;
    bool maximumPerformance; // with a reduced look
    float backlightOpacity;
    float innerGlow;
    float rimLight;
    float seed;
    float opacity;
    float roughness;
    float specular;
    float ambientOcclusion;
    float edgeWear;
    float textureOpacity;
};

// One number for each visible column, and up to a group of four more.
using ColumnValues = std::vector<float>;

// The same place of one row, four times over.
struct MaterialRow {
    simd::Float4 pixelY; // its centre, in pixels from the surface's top
    simd::Float4 ty;     // texture coordinate, 0 to 1
};

class MaterialInput {
public:
    // Columns are the surface's; they need not begin at 0.
    MaterialInput(const MaterialConstants& constants, Span columns);

    const MaterialParameters& parameters() const noexcept { return material_; }
    float longerSide() const noexcept { return std::max(width_, height_); }

    std::size_t columnCount() const noexcept { return pixelX_.size(); } // a multiple of four
    simd::Float4 pixelX(std::size_t column) const noexcept { return simd::load(&pixelX_[column]); }
    simd::Float4 tx(std::size_t column) const noexcept { return simd::load(&tx_[column]); }
    MaterialRow rowAt(std::int32_t y) const noexcept;

    // make(pixelX, tx) for every column.
    template <typename Make>
    ColumnValues perColumn(Make&& make) const
    {
        ColumnValues values(columnCount());
        for (std::size_t column = 0; column < values.size(); column += simd::kLanes)
            simd::store(&values[column], make(pixelX(column), tx(column)));
        return values;
    }

    // Where a pixel lies along the surface's gradient: the row's share, to which the column's is added.
    simd::Float4 axisOfRow(const MaterialRow& row) const noexcept { return axisY_ * row.ty + axisStart_; }
    simd::Float4 axis(simd::Float4 ofRow, std::size_t column) const noexcept
    {
        return ofRow + axisX_ * tx(column);
    }

private:
    MaterialParameters material_;
    float width_;
    float height_;
    ShaderVector mapping_;
    float originX_;
    float originY_;
    float axisStart_;
    float axisX_;
    float axisY_;
    ColumnValues pixelX_;
    ColumnValues tx_;
};

} // namespace vela
