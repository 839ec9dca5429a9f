#include "vela/theme/color/oklab.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>

namespace vela {
namespace {

// Newton's way to the fifth root: the sRGB curve needs x^2.4 at compile time, where std::pow is not
// available.
constexpr double fifthRoot(double value)
{
    double root = 1;
    for (int step = 0; step < 40; ++step) {
        const double fourth = root * root * root * root;
        root -= (fourth * root - value) / (5 * fourth);
    }
    return root;
}

constexpr double power12(double value)
{
    const double cube = value * value * value;
    return cube * cube * cube * cube;
}

constexpr std::array<float, 256> linearTable()
{
    std::array<float, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const double channel = static_cast<double>(byte) / 255;
        table[byte] = static_cast<float>(channel <= 0.04045 ? channel / 12.92
                                                            : power12(fifthRoot((channel + 0.055) / 1.055)));
    }
    return table;
}

constexpr std::array<float, 256> kLinear = linearTable();

std::uint8_t channelOf(float light) noexcept
{
    const auto* const above = std::lower_bound(kLinear.begin(), kLinear.end(), light);
    if (above == kLinear.begin())
        return 0;
    if (above == kLinear.end())
        return 255;
    const auto nearest = light - *(above - 1) < *above - light ? above - 1 : above;
    return static_cast<std::uint8_t>(nearest - kLinear.begin());
}

// The cube root of 0 to 1. A third of the exponent is a first guess; two of Halley's steps give all a colour
// needs, faster than the library's and the same on every system.
float cubeRoot(float value) noexcept
{
    if (value <= 0)
        return 0;
    float root = std::bit_cast<float>(std::bit_cast<std::uint32_t>(value) / 3 + 0x2A514067);
    for (int step = 0; step < 2; ++step) {
        const float cube = root * root * root;
        root *= (cube + 2 * value) / (2 * cube + value);
    }
    return root;
}

} // namespace

float linearLight(std::uint8_t channel) noexcept { return kLinear[channel]; }

// The matrices are those of Oklab's definition.
Oklab oklabOf(Color color) noexcept
{
    const float red = kLinear[redOf(color)];
    const float green = kLinear[greenOf(color)];
    const float blue = kLinear[blueOf(color)];
    const float l = cubeRoot(0.4122214708F * red + 0.5363325363F * green + 0.0514459929F * blue);
    const float m = cubeRoot(0.2119034982F * red + 0.6806995451F * green + 0.1073969566F * blue);
    const float s = cubeRoot(0.0883024619F * red + 0.2817188376F * green + 0.6299787005F * blue);
    return {0.2104542553F * l + 0.7936177850F * m - 0.0040720468F * s,
            1.9779984951F * l - 2.4285922050F * m + 0.4505937099F * s,
            0.0259040371F * l + 0.7827717662F * m - 0.8086757660F * s};
}

Color colorOf(const Oklab& lab) noexcept
{
    const float l = lab.lightness + 0.3963377774F * lab.a + 0.2158037573F * lab.b;
    const float m = lab.lightness - 0.1055613458F * lab.a - 0.0638541728F * lab.b;
    const float s = lab.lightness - 0.0894841775F * lab.a - 1.2914855480F * lab.b;
    const float l3 = l * l * l;
    const float m3 = m * m * m;
    const float s3 = s * s * s;
    return rgb(channelOf(4.0767416621F * l3 - 3.3077115913F * m3 + 0.2309699292F * s3),
               channelOf(-1.2684380046F * l3 + 2.6097574011F * m3 - 0.3413193965F * s3),
               channelOf(-0.0041960863F * l3 - 0.7034186147F * m3 + 1.7076147010F * s3));
}

Color mixOklab(Color from, Color to, float amount) noexcept
{
    const Oklab start = oklabOf(from);
    const Oklab end = oklabOf(to);
    return colorOf({start.lightness + (end.lightness - start.lightness) * amount,
                    start.a + (end.a - start.a) * amount, start.b + (end.b - start.b) * amount});
}

Color lightened(Color color, float amount) noexcept
{
    Oklab lab = oklabOf(color);
    const float lightness = std::clamp(lab.lightness + amount, 0.0F, 1.0F);
    // Colourfulness fades towards black and white, or a bright hue would leave what the screen can show.
    const float room = lightness > lab.lightness ? 1 - lab.lightness : lab.lightness;
    const float left = lightness > lab.lightness ? 1 - lightness : lightness;
    const float fade = room > 0 ? std::min(1.0F, left / room) : 1.0F;
    lab.lightness = lightness;
    lab.a *= fade;
    lab.b *= fade;
    return colorOf(lab);
}

float visualDistance(Color one, Color other) noexcept
{
    const Oklab left = oklabOf(one);
    const Oklab right = oklabOf(other);
    const float dl = left.lightness - right.lightness;
    const float da = left.a - right.a;
    const float db = left.b - right.b;
    return std::sqrt(dl * dl + da * da + db * db);
}

} // namespace vela
