#include "vela/render/text/glyph_painter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vela {

GlyphPainter::GlyphPainter(float gamma)
{
    constexpr float kBrightest = kLightSteps - 1;
    const float exponent = std::clamp(gamma, 1.0F, 2.2F);
    for (unsigned i = 0; i < lightOf_.size(); ++i)
        lightOf_[i] = static_cast<std::uint16_t>(
            std::lround(kBrightest * std::pow(static_cast<float>(i) / 255.0F, exponent)));
    for (unsigned i = 0; i < kLightSteps; ++i)
        numberOf_[i] = static_cast<std::uint8_t>(
            std::lround(255.0F * std::pow(static_cast<float>(i) / kBrightest, 1.0F / exponent)));
}

Pixel GlyphPainter::blended(Pixel background, Color color, const std::uint8_t* coverage) const noexcept
{
    const auto channel = [&](unsigned shift, unsigned wanted, unsigned covered) -> Pixel {
        const unsigned light =
            lightOf_[background >> shift & 0xFF] * (255 - covered) + lightOf_[wanted] * covered;
        return Pixel{numberOf_[(light + 127) / 255]} << shift;
    };
    return (background & 0xFF000000) | channel(16, redOf(color), coverage[0]) |
           channel(8, greenOf(color), coverage[1]) | channel(0, blueOf(color), coverage[2]);
}

void GlyphPainter::drawGlyph(const PixelView& pixels, Point pen, const GlyphMask& mask, Color color) const
{
    constexpr std::ptrdiff_t kChannels = 3;
    const Rect box = movedBy(mask.box, pen);
    const Rect seen = intersection(box, {0, 0, pixels.size.width, pixels.size.height});
    for (std::int32_t y = seen.y; y < seen.y + seen.height; ++y) {
        const std::uint8_t* coverage =
            mask.coverage.data() + kChannels * (std::ptrdiff_t{y - box.y} * box.width + (seen.x - box.x));
        Pixel* const row = pixels.row(y);
        for (std::int32_t x = seen.x; x < seen.x + seen.width; ++x, coverage += kChannels) {
            if (coverage[0] | coverage[1] | coverage[2])
                row[x] = blended(row[x], color, coverage);
        }
    }
}

void GlyphPainter::draw(const PixelView& pixels, Point corner, const TextLayout& layout, Color color) const
{
    for (const PositionedGlyph& glyph : layout.glyphs)
        drawGlyph(pixels, {corner.x + glyph.pen.x, corner.y + glyph.pen.y}, *glyph.mask, color);
    for (const Rect& line : layout.lines) {
        const Rect seen = intersection(movedBy(line, corner), {0, 0, pixels.size.width, pixels.size.height});
        for (std::int32_t y = seen.y; y < seen.y + seen.height; ++y)
            std::fill_n(pixels.row(y) + seen.x, seen.width, premultiplied(color, 255));
    }
}

} // namespace vela
