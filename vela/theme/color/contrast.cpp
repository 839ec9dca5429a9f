#include "vela/theme/color/contrast.h"

#include "vela/theme/color/oklab.h"

#include <algorithm>

namespace vela {
namespace {

constexpr Color kBlack = hexColor(0x000000);
constexpr Color kWhite = hexColor(0xFFFFFF);
constexpr int kNudges = 9; // halvings of the way to black or white; finer than a byte

float ratioOf(float luminance, float other) noexcept
{
    return (std::max(luminance, other) + 0.05F) / (std::min(luminance, other) + 0.05F);
}

// The colour nearest to from, on the way to a pole that is known to pass, which passes.
template <class Passes>
Color nearestPassing(Color from, Color pole, const Passes& passes)
{
    const Oklab start = oklabOf(from);
    const float end = pole == kWhite ? 1.0F : 0.0F;
    Color best = pole;
    float low = 0;
    float high = 1;
    for (int step = 0; step < kNudges; ++step) {
        const float amount = (low + high) / 2;
        const Color color = colorOf({start.lightness + (end - start.lightness) * amount,
                                     start.a * (1 - amount), start.b * (1 - amount)});
        if (passes(color)) {
            high = amount;
            best = color;
        } else {
            low = amount;
        }
    }
    return best;
}

} // namespace

float relativeLuminance(Color color) noexcept
{
    return 0.2126F * linearLight(redOf(color)) + 0.7152F * linearLight(greenOf(color)) +
           0.0722F * linearLight(blueOf(color));
}

float contrastRatio(Color one, Color other) noexcept
{
    return ratioOf(relativeLuminance(one), relativeLuminance(other));
}

void ToneRange::include(const ToneRange& other) noexcept
{
    if (relativeLuminance(other.darkest) < relativeLuminance(darkest))
        darkest = other.darkest;
    if (relativeLuminance(other.lightest) > relativeLuminance(lightest))
        lightest = other.lightest;
}

float contrastRatio(Color color, const ToneRange& backdrop) noexcept
{
    const float own = relativeLuminance(color);
    const float dark = relativeLuminance(backdrop.darkest);
    const float light = relativeLuminance(backdrop.lightest);
    if (own >= dark && own <= light)
        return 1;
    return own < dark ? ratioOf(own, dark) : ratioOf(own, light);
}

Color strongestOn(const ToneRange& backdrop) noexcept
{
    return contrastRatio(kWhite, backdrop) >= contrastRatio(kBlack, backdrop) ? kWhite : kBlack;
}

Color reaching(Color wanted, const ToneRange& backdrop, float ratio) noexcept
{
    const auto reaches = [&backdrop, ratio](Color color) { return contrastRatio(color, backdrop) >= ratio; };
    if (reaches(wanted))
        return wanted;
    // Stay on the side where the colour already is, as long as that side goes far enough.
    const bool lighter = relativeLuminance(wanted) > relativeLuminance(backdrop.lightest);
    const bool darker = relativeLuminance(wanted) < relativeLuminance(backdrop.darkest);
    Color pole = strongestOn(backdrop);
    if (lighter && reaches(kWhite))
        pole = kWhite;
    else if (darker && reaches(kBlack))
        pole = kBlack;
    return reaches(pole) ? nearestPassing(wanted, pole, reaches) : pole;
}

Color pickReaching(std::initializer_list<Color> wanted, const ToneRange& backdrop, float ratio) noexcept
{
    for (const Color color : wanted) {
        if (contrastRatio(color, backdrop) >= ratio)
            return color;
    }
    const Color nearest = *std::ranges::max_element(
        wanted, {}, [&backdrop](Color color) { return contrastRatio(color, backdrop); });
    return reaching(nearest, backdrop, ratio);
}

bool isReadableFace(Color face, float shading, float ratio) noexcept
{
    const ToneRange tones =
        shading > 0 ? ToneRange(lightened(face, -shading), lightened(face, shading)) : ToneRange(face);
    return contrastRatio(strongestOn(tones), tones) >= ratio;
}

Color readableFace(Color wanted, float shading, float ratio) noexcept
{
    const auto readable = [shading, ratio](Color color) { return isReadableFace(color, shading, ratio); };
    if (readable(wanted))
        return wanted;
    const bool forWhiteText = contrastRatio(kWhite, wanted) >= contrastRatio(kBlack, wanted);
    return nearestPassing(wanted, forWhiteText ? kBlack : kWhite, readable);
}

} // namespace vela
