#include "vela/render/materials/material_constants.h"

#include <algorithm>
#include <numbers>

namespace vela {
namespace {

// Beyond these the shader's hash has no bits left for the pixel's position, or the texture none to show.
constexpr std::uint32_t kSeedRange = 4096;
constexpr std::int32_t kLargestScale = 8192;

constexpr float radians(std::int32_t degrees) noexcept
{
    return static_cast<float>(degrees % 360) * (std::numbers::pi_v<float> / 180);
}

constexpr ShaderVector vectorOf(Color color) noexcept
{
    const auto channel = [](std::uint8_t value) { return static_cast<float>(value) / 255; };
    return {channel(redOf(color)), channel(greenOf(color)), channel(blueOf(color)), 1};
}

constexpr float scaleOf(std::int32_t pixels) noexcept
{
    return static_cast<float>(std::clamp(pixels, 0, kLargestScale));
}

// A texture that is mirroredModulo back and forth repeats every two tiles. Taking whole periods off a skin's
// offset leaves the picture as it is and the shader's floats exact.
constexpr float foldedOffset(std::int32_t offset, std::int32_t tile) noexcept
{
    return static_cast<float>(offset % (2 * tile));
}

} // namespace

MaterialConstants materialConstants(const SurfaceStyle& style, const Rect& rect, float animationPhase,
                                    PerformanceProfile profile) noexcept
{
    const auto number = [](auto value) { return static_cast<float>(value); };
    const bool luminous = style.material == MaterialPreset::LuminousGlass;
    const bool reduced = luminous && profile == PerformanceProfile::Reduced;

    MaterialConstants constants;
    constants.tint = vectorOf(style.materialTint);
    constants.backlight = vectorOf(style.backlightColor);
    constants.geometry = {number(rect.width), number(rect.height), 0, 0};
    constants.material0 = {number(style.material), number(style.materialStrength),
                           number(style.highlightOpacity), number(style.reflectionOpacity)};
    constants.material1 = {number(style.grainOpacity), number(style.materialDepth),
                           scaleOf(style.materialScale), radians(style.materialAngle)};
    constants.material2 = {radians(style.materialLightAngle),
                           radians(std::min<std::int32_t>(style.materialLightElevation, 90)),
                           scaleOf(style.lightBlobScale), radians(style.lightBlobAngle)};
    if (style.uvMapping == MappingSpace::Global) {
        const std::int32_t tile = std::clamp(style.uvScale, 8, kLargestScale);
        constants.geometry.z = number(rect.x);
        constants.geometry.w = number(rect.y);
        constants.material3 = {number(style.uvMapping), number(tile), foldedOffset(style.uvOffsetX, tile),
                               foldedOffset(style.uvOffsetY, tile)};
    }
    constants.material4 = {luminous && !reduced ? animationPhase : 0.0F, reduced ? 1.0F : 0.0F,
                           number(style.backlightOpacity), number(style.innerGlow)};
    constants.material5 = {number(style.rimLight), number(style.gradientDirection),
                           number(style.noiseSeed % kSeedRange), number(style.opacity)};
    constants.material6 = {number(style.roughness), number(style.specular), number(style.ambientOcclusion),
                           number(style.edgeWear)};
    constants.material7 = {number(style.textureOpacity), number(style.finish), 0, 0};
    return constants;
}

} // namespace vela
