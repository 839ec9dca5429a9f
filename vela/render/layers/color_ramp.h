// Colours along a line from 0 to 1, premultiplied: straight between a few stops, constant beyond the ends.
#pragma once

#include "vela/render/pixels/simd.h"
#include "vela/theme/records/surface_style.h"

#include <array>

namespace vela {

class ColorRamp {
public:
    // The gradient's colours at the style's opacity. Mirrored runs forth and back again.
    enum class Course { Once, Mirrored };
    ColorRamp(const SurfaceStyle& style, Course course);

    // Writes the colours at start, start + step, start + 2 step, ...
    void fillRun(Pixel* out, std::int32_t count, double start, double step) const;

private:
    struct Stop {
        double position = 0;
        simd::Float4 channels{}; // blue, green, red, alpha: 0 to 255, and what rounding adds
    };
    struct Piece;

    void add(double position, simd::Float4 channels)
    {
        stops_[static_cast<std::size_t>(count_++)] = {position, channels};
    }
    Piece pieceAt(double position) const;

    std::array<Stop, 5> stops_;
    int count_ = 0;
};

} // namespace vela
