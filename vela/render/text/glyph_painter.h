// Draws laid out texts into pixels.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/text/text_layout.h"

#include <array>
#include <cstdint>

namespace vela {

// Blends a text's colour with what it is drawn over, in the light that the pixels stand for: blended as
// numbers, dark letters would look bolder than light ones.
class GlyphPainter {
public:
    // The exponent between numbers and light, as the system is set up for text: 1 to 2.2.
    explicit GlyphPainter(float gamma);

    // Draws what falls inside the pixels; the corner is the text's, in their coordinates. Their upper
    // bytes do not count.
    void draw(const PixelView& pixels, Point corner, const TextLayout& layout, Color color) const;

private:
    static constexpr unsigned kLightSteps = 4096;

    Pixel blended(Pixel background, Color color, const std::uint8_t* coverage) const noexcept;
    void drawGlyph(const PixelView& pixels, Point pen, const GlyphMask& mask, Color color) const;

    std::array<std::uint16_t, 256> lightOf_;
    std::array<std::uint8_t, kLightSteps> numberOf_;
};

} // namespace vela
