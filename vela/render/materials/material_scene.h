// What every part of the material overlay needs of a surface: the shader's constants by name and in its own
// units, and where the columns and rows lie. What depends on the column alone is computed once per surface,
// what depends on the row alone once per row; only the rest is left to the pixels.
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

constexpr Rgb mixed(Rgb from, Rgb to, float amount) noexcept
{
    return {from.red + amount * (to.red - from.red), from.green + amount * (to.green - from.green),
            from.blue + amount * (to.blue - from.blue)};
}

// Strengths and opacities from 0 to 1, lengths in pixels, angles in radians.
struct MaterialLook {
    explicit MaterialLook(const MaterialConstants& constants) noexcept;

    Rgb tint;
    Rgb backlight;
    Rgb light; // white and black with a breath of the tint
    Rgb shade;
    float strength; // 1 at 180
    float highlight;
    float reflection;
    float grain;
    float depth;
    float scale;
    float angle;
    float lightAngle;
    float lightElevation;
    float blobScale;
    float blobAngle;
    float phase;
    bool reduced; // maximum performance
    float backlightOpacity;
    float innerGlow;
    float rimLight;
    float seed;
    float opacity;
    float roughness;
    float specular;
    float occlusion;
    float edgeWear;
    float texture;
};

// One number for each visible column, and up to a group of four more.
using ColumnValues = std::vector<float>;

// The same place of one row, four times over.
struct MaterialRow {
    simd::Float4 pixel;   // its centre, in pixels from the surface's top
    simd::Float4 texture; // texture coordinate, 0 to 1
};

class MaterialScene {
public:
    // Columns are the surface's; they need not begin at 0.
    MaterialScene(const MaterialConstants& constants, Span columns);

    const MaterialLook& look() const noexcept { return look_; }
    float longerSide() const noexcept { return std::max(width_, height_); }

    std::size_t columnCount() const noexcept { return pixels_.size(); } // a multiple of four
    simd::Float4 pixelX(std::size_t column) const noexcept { return simd::load(&pixels_[column]); }
    simd::Float4 textureX(std::size_t column) const noexcept { return simd::load(&textures_[column]); }
    MaterialRow rowAt(std::int32_t y) const noexcept;

    // make(pixel, texture) for every column, as a MaterialRow has them.
    template <typename Make>
    ColumnValues perColumn(Make&& make) const
    {
        ColumnValues values(columnCount());
        for (std::size_t column = 0; column < values.size(); column += simd::kLanes)
            simd::store(&values[column], make(pixelX(column), textureX(column)));
        return values;
    }

    // Where a pixel lies along the surface's gradient: the row's share, to which the column's is added.
    simd::Float4 axisOfRow(const MaterialRow& row) const noexcept
    {
        return axisY_ * row.texture + axisStart_;
    }
    simd::Float4 axis(simd::Float4 ofRow, std::size_t column) const noexcept
    {
        return ofRow + axisX_ * textureX(column);
    }

private:
    MaterialLook look_;
    float width_;
    float height_;
    ShaderVector mapping_;
    float originX_;
    float originY_;
    float axisStart_;
    float axisX_;
    float axisY_;
    ColumnValues pixels_;
    ColumnValues textures_;
};

} // namespace vela
