#include "vela/render/layers/spatial_shading.h"

#include "vela/render/shapes/signed_distance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vela {
namespace {

using simd::Float4;

// The light and the body's relief, all from the style.
class Relief {
public:
    Relief(const SurfaceStyle& style, Size size)
    {
        const float depth = static_cast<float>(style.materialDepth) / 255;
        const float angle = static_cast<float>(style.materialLightAngle % 360) * kRadiansPerDegree;
        const int degrees = std::min<int>(style.materialLightElevation, 90);
        const float grazing = std::cos(static_cast<float>(degrees) * kRadiansPerDegree);
        lightX_ = grazing * std::cos(angle);
        lightY_ = grazing * std::sin(angle);
        const auto width = static_cast<float>(std::max(size.width, 1));
        const auto height = static_cast<float>(std::max(size.height, 1));
        const float side = std::min(width, height);
        roundedWidth_ = std::clamp(side * 0.16F, 2.0F, 3 + 10 * depth);
        edgeSlope_ = 0.25F + 1.2F * depth;
        rim_ = static_cast<float>(style.rimLight) / 255;
        // A long bar bulges across its short side much more than along its length.
        faceX_ = lightX_ * 0.5F * depth * side / (width * width);
        faceY_ = lightY_ * 0.5F * depth * side / (height * height);
        middleX_ = width / 2;
        middleY_ = height / 2;
    }

    // Light above 0 and shade below, 1 at the most, relative to a flat surface. Slopes count in proportion,
    // not by the cosine of a true normal: that would give a lit edge less than half of what it takes from the
    // other.
    Float4 at(Float4 x, float y, const DistanceSample& edge) const
    {
        const Float4 zero{};
        const Float4 one = simd::splat(1.0F);
        // The slope falls off smoothly from the edge inwards, as on a rounded body.
        const Float4 inwards = simd::max(edge.distance, zero) / simd::splat(roundedWidth_);
        const Float4 fade = simd::max(one - inwards, zero);
        // The outermost pixel catches the light like a polished arris.
        const Float4 arris = simd::min(simd::max(simd::splat(kArrisWidth) - edge.distance, zero), one);
        const Float4 slope = simd::splat(edgeSlope_) * fade * fade + simd::splat(rim_) * arris;
        const Float4 towardsLight = edge.outX * simd::splat(lightX_) + edge.outY * simd::splat(lightY_);
        return towardsLight * slope + faceAt(x, y);
    }

    // The same where the edges do not reach.
    Float4 faceAt(Float4 x, float y) const noexcept
    {
        return x * simd::splat(faceX_) + simd::splat((y - middleY_) * faceY_ - middleX_ * faceX_);
    }
    float edgeReach() const noexcept { return std::max(roundedWidth_, kArrisWidth); }

private:
    static constexpr float kArrisWidth = 1.5F;
    static constexpr float kRadiansPerDegree = std::numbers::pi_v<float> / 180;
    float lightX_;
    float lightY_;
    float roundedWidth_; // how far in from the edge the rounding reaches, in pixels
    float edgeSlope_;    // its steepness at the very edge
    float rim_;
    float faceX_; // the slight bulge of the whole face, per pixel
    float faceY_;
    float middleX_;
    float middleY_;
};

Color mixSrgb(Color from, Color to, float amount) noexcept
{
    const auto channel = [amount](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(static_cast<float>(a) + static_cast<float>(b - a) * amount);
    };
    return rgb(channel(redOf(from), redOf(to)), channel(greenOf(from), greenOf(to)),
               channel(blueOf(from), blueOf(to)));
}

// Every shade from full darkness at 0 through nothing in the middle to full light at the end.
constexpr std::size_t kFlat = 255;
using Shades = std::array<Pixel, 2 * kFlat + 1>;

Shades shadesOf(const SurfaceStyle& style) noexcept
{
    const Color light = mixSrgb(hexColor(0xFFFFFF), style.materialTint, 0.28F);
    const Color shade = mixSrgb(hexColor(0x000000), style.materialTint, 0.06F);
    const float opacity = static_cast<float>(style.opacity) / 255;
    const float lightStrength = opacity * static_cast<float>(style.highlightOpacity) / 255 * 2.2F;
    const float shadeStrength = opacity * (0.7F + 0.3F * static_cast<float>(style.ambientOcclusion) / 255);
    const auto alphaOfStep = [](std::size_t step, float strength) {
        return static_cast<unsigned>(std::min(static_cast<float>(step) * strength + 0.5F, 255.0F));
    };
    Shades shades{};
    for (std::size_t step = 1; step <= kFlat; ++step) {
        shades[kFlat + step] = premultiplied(light, alphaOfStep(step, lightStrength));
        shades[kFlat - step] = premultiplied(shade, alphaOfStep(step, shadeStrength));
    }
    return shades;
}

// Rounded down, and no further than whole numbers and those of fractions go alike.
std::int32_t wholeColumn(float x) noexcept
{
    constexpr auto kFarthest = static_cast<float>(1 << 30);
    return static_cast<std::int32_t>(std::clamp(x, 0.0F, kFarthest));
}

template <typename Edge>
void shadeBody(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style,
               const Edge& edge)
{
    const Relief relief(style, coverage.size());
    const Shades shades = shadesOf(style);
    const auto shade = [&shades](Float4 light) {
        const Float4 place = light * simd::splat(static_cast<float>(kFlat)) + simd::splat(kFlat + 0.5F);
        const Float4 inRange = simd::min(simd::max(place, Float4{}), simd::splat(2.0F * kFlat));
        return simd::lookUp(shades.data(), simd::truncated(inRange));
    };
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t row) {
        const float y = static_cast<float>(row) + 0.5F;
        const InnerRange range = edge.innerRange(relief.edgeReach(), y);
        const Span face = intersect(run, {wholeColumn(range.low) + 1, wholeColumn(range.high)});
        const auto nearEdge = [&](std::int32_t column) {
            const Float4 x = simd::pixelCentres(column);
            return shade(relief.at(x, y, edge.at(x, y)));
        };
        const auto onFace = [&](std::int32_t column) {
            return shade(relief.faceAt(simd::pixelCentres(column), y));
        };
        if (face.empty())
            return simd::writeInFours(first, run.begin, run.end, nearEdge);
        simd::writeInFours(first, run.begin, face.begin, nearEdge);
        simd::writeInFours(first + (face.begin - run.begin), face.begin, face.end, onFace);
        simd::writeInFours(first + (face.end - run.begin), face.end, run.end, nearEdge);
    });
}

} // namespace

bool castsSpatialShading(const SurfaceStyle& style) noexcept
{
    return style.materialDepth > 0 && style.opacity > 0;
}

void fillSpatialShading(const LayerTarget& target, const Coverage& coverage, const SurfaceStyle& style)
{
    if (!coverage.isShape() || !castsSpatialShading(style))
        return clearLayer(target);
    const Size size = coverage.size();
    withSignedDistance(coverage.shape(), {0, 0, size.width, size.height},
                       [&](const auto& edge) { shadeBody(target, coverage, style, edge); });
}

} // namespace vela
