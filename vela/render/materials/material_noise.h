// The two kinds of noise in materials: a grain of one value per pixel, and soft clouds. Both follow the
// shader's functions of these names float by float, for its hash makes another value of every last bit.
#pragma once

#include "vela/render/materials/material_input.h"

#include <array>

namespace vela {

// hash21: a hash of the pixel's position from 0 to 1. It mixes one number of the column with one of the row.
class Hash21 {
public:
    struct Place {
        float factor = 1; // the pixel's position times this,
        float stepX = 0;  // then so many pixels further
        float stepY = 0;
    };

    Hash21(const MaterialInput& input, float seed, Place place);
    Hash21(const MaterialInput& input, float seed) : Hash21(input, seed, Place{}) {}

    void beginRow(const MaterialRow& row) noexcept;
    simd::Float4 at(std::size_t column) const noexcept;

private:
    Place place_;
    float seed_;
    ColumnValues columns_;
    simd::Float4 row_{};
};

// fbm, fractional Brownian motion: three octaves of smooth noise between the points of a lattice, 0 to 1.
class Fbm {
public:
    // Lattice points so many pixels apart.
    static Fbm onPixels(const MaterialInput& input, float spacing, float offset);
    // So many lattice points along the texture coordinates.
    static Fbm onUv(const MaterialInput& input, float pointsX, float pointsY, float offset);

    void beginRow(const MaterialRow& row);
    simd::Float4 at(std::size_t column) const noexcept;

private:
    // One octave. The lattice changes from row to row by less than a point, so what the columns make of a
    // line of points is cached for all rows beside it.
    struct SmoothNoise {
        void place(simd::Float4 x, std::size_t column);
        void moveTo(simd::Float4 y);
        void fill(ColumnValues& line, float latticeY) const;

        ColumnValues left;  // the hash's share of the lattice point left of the column
        ColumnValues right; // and right of it
        ColumnValues blend;
        ColumnValues above; // the lattice lines above and below the row
        ColumnValues below;
        float lineAbove = -4; // no lattice lies there
        simd::Float4 rowBlend{};
    };

    Fbm(const MaterialInput& input, bool onPixels, float spreadX, float spreadY, float offset);

    simd::Float4 position(simd::Float4 pixel, simd::Float4 uv, float spread) const noexcept;

    bool onPixels_;
    float spreadY_;
    float offset_;
    std::array<SmoothNoise, 3> octaves_;
};

} // namespace vela
