#include "vela/render/materials/material_input.h"

#include "vela/render/layers/gradient.h"

namespace vela {
namespace {

using simd::Float4;
using simd::splat;

constexpr Rgb rgbOf(const ShaderVector& color) noexcept { return {color.x, color.y, color.z}; }

// Back and forth between 0 and the tile's end.
Float4 mirroredModulo(Float4 position, float tile) noexcept
{
    const float period = 2 * tile;
    const Float4 wrapped = position - simd::floor(position / period) * period;
    return wrapped > tile ? period - wrapped : wrapped;
}

Float4 materialUv(Float4 pixel, float length, float origin, float offset,
                  const ShaderVector& mapping) noexcept
{
    if (mapping.x < 0.5F)
        return simd::saturate(pixel / std::max(1.0F, length - 1));
    const float tile = std::max(8.0F, mapping.y);
    return mirroredModulo(origin + pixel + offset, tile) / tile;
}

// A rasteriser interpolates texture coordinates over the triangle, whose area is four times the surface's,
// and the shader multiplies them by the size. Each step rounds, and the shader's hash magnifies the last bit
// of a position into another grain: these are the roundings of one rasteriser, and no two graphics cards show
// the same grain either.
float coordinateStep(float length, float across) noexcept
{
    return 2 * (2 * across * (1 / (4 * length * across)));
}

// Rounded once.
float coordinateAt(float start, float step, double index) noexcept
{
    return static_cast<float>(start + static_cast<double>(step) * index);
}

} // namespace

MaterialParameters::MaterialParameters(const MaterialConstants& constants) noexcept
    : tint(rgbOf(constants.tint)), backlight(rgbOf(constants.backlight)),
      highlightColor(lerp({1, 1, 1}, tint, 0.28F)), shadowColor(lerp({0, 0, 0}, tint, 0.10F)),
      strength(constants.material0.y / 180), highlight(constants.material0.z / 255),
      reflection(constants.material0.w / 255), grainOpacity(constants.material1.x / 255),
      depth(constants.material1.y / 255), scale(std::max(2.0F, constants.material1.z)),
      angle(constants.material1.w), lightAngle(constants.material2.x), lightElevation(constants.material2.y),
      blobScale(std::max(24.0F, constants.material2.z)), blobAngle(constants.material2.w),
      animationPhase(constants.material4.x), maximumPerformance(constants.material4.y > 0.5F),
      backlightOpacity(constants.material4.z / 255), innerGlow(constants.material4.w / 255),
      rimLight(constants.material5.x / 255), seed(constants.material5.z),
      opacity(constants.material5.w / 255), roughness(constants.material6.x / 255),
      specular(constants.material6.y / 255), ambientOcclusion(constants.material6.z / 255),
      edgeWear(constants.material6.w / 255), textureOpacity(constants.material7.x / 255)
{
}

MaterialInput::MaterialInput(const MaterialConstants& constants, Span columns)
    : material_(constants), width_(constants.geometry.x), height_(constants.geometry.y),
      mapping_(constants.material3), originX_(constants.geometry.z), originY_(constants.geometry.w)
{
    const GradientAxis& axis = gradientAxis(static_cast<GradientDirection>(constants.material5.y));
    axisStart_ = static_cast<float>(axis.offset);
    axisX_ = static_cast<float>(axis.acrossU);
    axisY_ = static_cast<float>(axis.acrossV);

    const float step = coordinateStep(width_, height_);
    const std::size_t groups = (static_cast<std::size_t>(columns.length()) + simd::kLanes - 1) / simd::kLanes;
    pixelX_.reserve(groups * simd::kLanes);
    for (std::size_t column = 0; column < groups * simd::kLanes; ++column) {
        const double x = columns.begin + static_cast<double>(column);
        pixelX_.push_back(coordinateAt(0.5F * step, step, x) * width_);
    }
    tx_.resize(pixelX_.size());
    for (std::size_t column = 0; column < pixelX_.size(); column += simd::kLanes)
        simd::store(&tx_[column], materialUv(pixelX(column), width_, originX_, mapping_.z, mapping_));
}

MaterialRow MaterialInput::rowAt(std::int32_t y) const noexcept
{
    const float step = coordinateStep(height_, width_);
    const float pixel = coordinateAt(1 - (height_ - 0.5F) * step, step, y) * height_;
    return {splat(pixel), materialUv(splat(pixel), height_, originY_, mapping_.w, mapping_)};
}

} // namespace vela
