// Letters as pixels. A text engine rasterises each letter of a font once; from then on drawing a text is
// blending such pictures, in any colour.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

#include <array>
#include <cstdint>
#include <vector>

namespace vela {

// How much of each pixel's red, green and blue a letter covers: three bytes a pixel in that order, rows from
// top to bottom.
struct GlyphPicture {
    Rect box; // pixels, from the pen's place on the base line
    std::vector<std::uint8_t> coverage;
};

struct PlacedGlyph {
    const GlyphPicture* picture; // borrowed: pictures live as long as the process
    Point pen;
};

// A text, laid out and ready to be drawn. Places are relative to its top left corner.
struct PlacedText {
    std::vector<PlacedGlyph> glyphs;
    std::vector<Rect> lines; // under and through letters
    Rect ink;                // around every pixel that drawing may touch

    void addGlyph(const GlyphPicture& picture, Point pen);
    void addLine(const Rect& line);
};

// Mixes a text's colour with what it is drawn over, in the light that the pixels stand for: mixed as numbers,
// dark letters would look bolder than light ones.
class TextInk {
public:
    // The exponent between numbers and light, as the system is set up for text: 1 to 2.2.
    explicit TextInk(float gamma);

    // Draws what falls inside the pixels; the corner is the text's, in their coordinates. Their upper
    // bytes do not count.
    void draw(const PixelView& pixels, Point corner, const PlacedText& text, Color color) const;

private:
    static constexpr unsigned kLightSteps = 4096;

    Pixel mixed(Pixel ground, Color color, const std::uint8_t* coverage) const noexcept;
    void drawGlyph(const PixelView& pixels, Point pen, const GlyphPicture& picture, Color color) const;

    std::array<std::uint16_t, 256> lightOf_;
    std::array<std::uint8_t, kLightSteps> numberOf_;
};

} // namespace vela
