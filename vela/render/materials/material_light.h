// The light behind luminous glass. It moves while all else in the glass stands still, so a picture of the
// rest is cached and only the light is added for each step of the animation.
#pragma once

#include "vela/render/materials/material_input.h"
#include "vela/render/pixels/pixel_buffer.h"

namespace vela {

// Brightest along an axis of its own.
class Backlight {
public:
    explicit Backlight(const MaterialInput& input);

    void beginRow(const MaterialRow& row) noexcept
    {
        const simd::Float4 y = row.ty - centerY_;
        constant_ = squareY_ * y * y;
        linear_ = product_ * y;
    }
    // Its opacity.
    simd::Float4 at(std::size_t column) const noexcept
    {
        const simd::Float4 x = input_.tx(column) - centerX_;
        return simd::exp(-(constant_ + x * (linear_ + x * squareX_))) * opacity_;
    }

private:
    const MaterialInput& input_;
    float centerX_ = 0.30F;
    float centerY_ = 0.62F;
    float squareX_; // how it fades, as a quadratic form
    float squareY_;
    float product_;
    float opacity_;
    simd::Float4 constant_{};
    simd::Float4 linear_{};
};

inline bool hasMovingLight(const MaterialConstants& constants) noexcept { return constants.material4.x > 0; }

// The same surface without its light.
MaterialConstants withoutLight(const MaterialConstants& constants) noexcept;

// Writes the whole surface's overlay from that of the surface without its light, of the same size. Within one
// level of the overlay rendered at once.
void addLight(const MaterialConstants& constants, const PixelView& rest, const PixelView& target);

} // namespace vela
