// Colours along a line from 0 to 1, premultiplied: straight between a few stops, constant beyond the ends.
#pragma once

#include "vela/render/pixels/simd.h"
#include "vela/render/shapes/shape_rows.h"
#include "vela/theme/records/surface_style.h"

#include <array>
#include <cstddef>

namespace vela {

class ColorRamp {
public:
    // The gradient's colours at the style's opacity. Mirrored runs forth and back again.
    enum class Course { Once, Mirrored };
    ColorRamp(const SurfaceStyle& style, Course course);

    // Writes the colours of some columns, from 0 up, of a row whose first column lies at start and each
    // further one a step beyond. What a column gets does not depend on which others are asked for.
    void fillRun(Pixel* out, Span columns, double start, double step) const;

private:
    // From a position to that of the next one.
    struct Piece {
        double position = 0;
        simd::Float4 channels{}; // blue, green, red, alpha: 0 to 255, and what rounding adds
        simd::Float4 slope{};    // per unit of position

        simd::Float4 at(double place) const noexcept
        {
            return channels + slope * static_cast<float>(place - position);
        }
    };
    struct Row;

    void add(double position, simd::Float4 channels);
    static void fillPiece(Pixel* out, Span columns, const Piece& piece, const Row& row, std::int32_t first);

    std::array<Piece, 6> pieces_; // the first is what lies before its position, too
    std::size_t count_ = 0;
};

} // namespace vela
