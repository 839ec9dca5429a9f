#include "vela/render/text/glyph_picture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vela {

void PlacedText::addGlyph(const GlyphPicture& picture, Point pen)
{
    if (isEmpty(picture.box))
        return;
    glyphs.push_back({&picture, pen});
    ink = around(ink, movedBy(picture.box, pen));
}

void PlacedText::addLine(const Rect& line)
{
    lines.push_back(line);
    ink = around(ink, line);
}

TextInk::TextInk(float gamma)
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

Pixel TextInk::mixed(Pixel ground, Color color, const std::uint8_t* coverage) const noexcept
{
    const auto channel = [&](unsigned shift, unsigned wanted, unsigned covered) -> Pixel {
        const unsigned light =
            lightOf_[ground >> shift & 0xFF] * (255 - covered) + lightOf_[wanted] * covered;
        return Pixel{numberOf_[(light + 127) / 255]} << shift;
    };
    return (ground & 0xFF000000) | channel(16, redOf(color), coverage[0]) |
           channel(8, greenOf(color), coverage[1]) | channel(0, blueOf(color), coverage[2]);
}

void TextInk::drawGlyph(const PixelView& pixels, Point pen, const GlyphPicture& picture, Color color) const
{
    constexpr std::ptrdiff_t kChannels = 3;
    const Rect box = movedBy(picture.box, pen);
    const Rect seen = intersection(box, {0, 0, pixels.size.width, pixels.size.height});
    for (std::int32_t y = seen.y; y < seen.y + seen.height; ++y) {
        const std::uint8_t* coverage =
            picture.coverage.data() + kChannels * (std::ptrdiff_t{y - box.y} * box.width + (seen.x - box.x));
        Pixel* const row = pixels.row(y);
        for (std::int32_t x = seen.x; x < seen.x + seen.width; ++x, coverage += kChannels) {
            if (coverage[0] | coverage[1] | coverage[2])
                row[x] = mixed(row[x], color, coverage);
        }
    }
}

void TextInk::draw(const PixelView& pixels, Point corner, const PlacedText& text, Color color) const
{
    for (const PlacedGlyph& glyph : text.glyphs)
        drawGlyph(pixels, {corner.x + glyph.pen.x, corner.y + glyph.pen.y}, *glyph.picture, color);
    for (const Rect& line : text.lines) {
        const Rect seen = intersection(movedBy(line, corner), {0, 0, pixels.size.width, pixels.size.height});
        for (std::int32_t y = seen.y; y < seen.y + seen.height; ++y)
            std::fill_n(pixels.row(y) + seen.x, seen.width, premultiplied(color, 255));
    }
}

} // namespace vela
