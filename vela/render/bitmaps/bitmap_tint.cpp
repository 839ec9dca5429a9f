#include "vela/render/bitmaps/bitmap_tint.h"

#include <algorithm>

namespace vela {
namespace {

constexpr int lerp(int from, int to, int amount) noexcept
{
    return (from * (255 - amount) + to * amount + 127) / 255;
}

constexpr Channels lerp(const Channels& from, const Channels& to, int amount) noexcept
{
    return {lerp(from.red, to.red, amount), lerp(from.green, to.green, amount),
            lerp(from.blue, to.blue, amount), lerp(from.alpha, to.alpha, amount)};
}

constexpr int luminanceOf(const Channels& c) noexcept
{
    return (77 * c.red + 150 * c.green + 29 * c.blue) >> 8;
}

constexpr Channels colored(Color color, int alpha) noexcept
{
    return {redOf(color), greenOf(color), blueOf(color), alpha};
}

// The colour made lighter or darker until it has the luminance; where a channel would leave its range, colour
// gives way to grey.
Channels withLuminance(const Channels& color, int luminance) noexcept
{
    const int shift = luminance - luminanceOf(color);
    const auto [low, high] = std::minmax({color.red + shift, color.green + shift, color.blue + shift});
    const auto place = [&, least = low, most = high](int channel) {
        int value = channel + shift;
        if (least < 0)
            value = luminance + (value - luminance) * luminance / (luminance - least);
        if (most > 255)
            value = luminance + (value - luminance) * (255 - luminance) / (most - luminance);
        return std::clamp(value, 0, 255);
    };
    return {place(color.red), place(color.green), place(color.blue), color.alpha};
}

int maskIn(const Channels& source, MaskChannel channel) noexcept
{
    switch (channel) {
    case MaskChannel::Red: return source.red;
    case MaskChannel::Green: return source.green;
    case MaskChannel::Blue: return source.blue;
    case MaskChannel::Alpha: return source.alpha;
    case MaskChannel::Brightness: return std::max({source.red, source.green, source.blue});
    case MaskChannel::Rgb: break;
    }
    return (source.red + source.green + source.blue) / 3;
}

int adjustedMask(int mask, const BitmapTint& tint) noexcept
{
    const int value = tint.invertMask ? 255 - mask : mask;
    return value < tint.coverageThreshold ? 0 : value;
}

// How strongly a mode that keeps the picture's own alpha tints the pixel.
int strengthOf(const Channels& source, const BitmapTint& tint) noexcept
{
    const int mask = adjustedMask(maskIn(source, tint.maskChannel), tint);
    return tint.maskChannel == MaskChannel::Alpha && !tint.invertMask && mask > 0 ? 255 : mask;
}

// Colours evenly spread from 0 to 255. Without a palette, the two colours are one.
Channels paletteAt(const BitmapTint& tint, int position, int alpha) noexcept
{
    if (tint.palette.empty())
        return lerp(colored(tint.secondary.color, alpha), colored(tint.primary.color, alpha), position);
    const auto steps = static_cast<int>(tint.palette.size()) - 1;
    const int place = position * steps;
    const auto first = static_cast<std::size_t>(place / 255);
    const std::size_t second = std::min(first + 1, tint.palette.size() - 1);
    return lerp(colored(tint.palette[first].color, alpha), colored(tint.palette[second].color, alpha),
                place % 255);
}

Channels wholeTint(const Channels& source, const BitmapTint& tint) noexcept
{
    switch (tint.mode) {
    case TintMode::None: break;
    case TintMode::Monochrome: {
        const int mask = adjustedMask(maskIn(source, tint.maskChannel), tint);
        return colored(tint.primary.color,
                       tint.maskChannel == MaskChannel::Alpha ? mask : mask * source.alpha / 255);
    }
    case TintMode::LumaMask:
        return lerp(colored(tint.secondary.color, source.alpha), colored(tint.primary.color, source.alpha),
                    adjustedMask(luminanceOf(source), tint));
    case TintMode::AlphaMask: {
        const Channels opaque{source.red, source.green, source.blue, 255};
        return lerp(opaque, colored(tint.primary.color, 255), adjustedMask(source.alpha, tint));
    }
    case TintMode::Colorize: {
        const Channels multiplied{source.red * redOf(tint.primary.color) / 255,
                                  source.green * greenOf(tint.primary.color) / 255,
                                  source.blue * blueOf(tint.primary.color) / 255, source.alpha};
        return lerp(source, multiplied, strengthOf(source, tint));
    }
    case TintMode::PaletteMap:
        return lerp(source, paletteAt(tint, luminanceOf(source), source.alpha), strengthOf(source, tint));
    }
    return source;
}

} // namespace

Channels tinted(const Channels& source, const BitmapTint& tint) noexcept
{
    if (tint.mode == TintMode::None)
        return source;
    Channels result = wholeTint(source, tint);
    if (tint.preserveLuminance)
        result = withLuminance(result, luminanceOf(source));
    return lerp(source, result, tint.amount);
}

} // namespace vela
