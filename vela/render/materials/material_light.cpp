#include "vela/render/materials/material_light.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vela {
namespace {

using simd::Float4;

Float4 channelOf(simd::UInt4 pixels, int shift) noexcept
{
    return simd::toFloat(reinterpret_cast<simd::Int4>(pixels >> shift & 0xFFU));
}

} // namespace

Backlight::Backlight(const MaterialInput& input)
    : input_(input), opacity_(input.parameters().backlightOpacity * 0.70F)
{
    const MaterialParameters& material = input.parameters();
    if (material.animationPhase > 0) {
        const float phaseRadians = material.animationPhase * (2 * std::numbers::pi_v<float>);
        centerX_ += 0.16F * std::cos(phaseRadians);
        centerY_ += 0.12F * std::sin(phaseRadians * 0.83F + 0.8F);
    }
    const float scaleRatio = material.blobScale / std::max(64.0F, input.longerSide());
    const float length = std::clamp(scaleRatio * 0.62F, 0.26F, 1.25F);
    const float breadth = std::clamp(scaleRatio * 0.24F, 0.12F, 0.64F);
    const float axisX = std::cos(material.blobAngle);
    const float axisY = std::sin(material.blobAngle);
    const float along = 1 / (length * length);
    const float across = 1 / (breadth * breadth);
    squareX_ = axisX * axisX * along + axisY * axisY * across;
    squareY_ = axisY * axisY * along + axisX * axisX * across;
    product_ = 2 * axisX * axisY * (along - across);
}

MaterialConstants withoutLight(const MaterialConstants& constants) noexcept
{
    MaterialConstants rest = constants;
    rest.material4.x = 0;
    rest.material4.z = 0;
    return rest;
}

void addLight(const MaterialConstants& constants, const PixelView& rest, const PixelView& target)
{
    const MaterialInput input(constants, {0, target.size.width});
    const MaterialParameters& material = input.parameters();
    const float levels = 255 * material.strength * material.opacity;
    Backlight light(input);
    for (std::int32_t y = 0; y < target.size.height; ++y) {
        light.beginRow(input.rowAt(y));
        const Pixel* const still = rest.row(y);
        simd::writeInFours(target.row(y), 0, target.size.width, [&](std::int32_t x) {
            const simd::UInt4 beneath = simd::loadPixels(still + x, target.size.width - x);
            const Float4 added = light.at(static_cast<std::size_t>(x)) * levels;
            const Float4 alpha = channelOf(beneath, 24) + added;
            // Opacity is cut at its most and the colour, which carries it, with it.
            const Float4 cut = alpha > 255.0F ? 255.0F / alpha : simd::splat(1.0F);
            return simd::packedPixels((channelOf(beneath, 0) + added * material.backlight.blue) * cut,
                                      (channelOf(beneath, 8) + added * material.backlight.green) * cut,
                                      (channelOf(beneath, 16) + added * material.backlight.red) * cut,
                                      alpha * cut);
        });
    }
}

} // namespace vela
