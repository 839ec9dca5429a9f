// The surfaces on which the ways of rendering a material are held against each other: every preset with every
// finish in both mappings, with the other settings varied from one to the next so that each occurs with each.
#pragma once

#include "vela/render/materials/material_constants.h"

#include <cstdint>
#include <string>

namespace vela::testing {

inline constexpr int kSamplePresets = 18; // from Glass to StoneMarble
inline constexpr int kSampleFinishes = 11;

struct MaterialSample {
    MaterialPreset preset = MaterialPreset::Glass;
    MaterialFinish finish = MaterialFinish::Default;
    MappingSpace mapping = MappingSpace::Local;

    std::string name() const
    {
        return "preset " + std::to_string(static_cast<int>(preset)) + ", finish " +
               std::to_string(static_cast<int>(finish)) +
               (mapping == MappingSpace::Local ? ", local" : ", global");
    }
};

// Calls visit(sample) for each of them.
template <typename Visit>
void forEachMaterialSample(Visit&& visit)
{
    for (const MappingSpace mapping : {MappingSpace::Local, MappingSpace::Global}) {
        for (int preset = 1; preset <= kSamplePresets; ++preset) {
            for (int finish = 0; finish < kSampleFinishes; ++finish)
                visit(MaterialSample{static_cast<MaterialPreset>(preset), static_cast<MaterialFinish>(finish),
                                     mapping});
        }
    }
}

inline MaterialConstants constantsOf(const MaterialSample& sample, Size size)
{
    const int preset = static_cast<int>(sample.preset);
    const int finish = static_cast<int>(sample.finish);
    const int turn = preset + finish + (sample.mapping == MappingSpace::Global ? 2 : 0);
    const auto byteOf = [](int value) { return static_cast<std::uint8_t>(value % 256); };

    SurfaceStyle style;
    style.material = sample.preset;
    style.finish = sample.finish;
    style.uvMapping = sample.mapping;
    style.materialEnabled = true;
    style.materialTint = rgb(byteOf(70 + preset * 41), byteOf(200 + preset * 23), byteOf(120 + preset * 67));
    style.backlightColor = rgb(byteOf(255 - finish * 12), byteOf(170 + finish * 8), byteOf(90 + finish * 31));
    style.materialStrength = byteOf(140 + finish * 11);
    style.highlightOpacity = byteOf(110 + turn * 5);
    style.reflectionOpacity = byteOf(190 - turn * 4);
    style.textureOpacity = byteOf(150 + preset * 5);
    style.specular = byteOf(60 + finish * 18);
    style.roughness = byteOf(30 + preset * 11);
    style.rimLight = byteOf(60 + turn * 6);
    style.backlightOpacity = byteOf(120 + finish * 9);
    style.innerGlow = byteOf(200 - finish * 10);
    style.grainOpacity = turn % 7 == 1 ? 90 : 6;
    style.materialDepth = turn % 7 == 2 ? byteOf(40 + preset * 8) : 0;
    style.ambientOcclusion = turn % 2 == 0 ? 90 : 0;
    style.edgeWear = turn % 3 == 0 ? 120 : 0;
    style.opacity = turn % 3 == 1 ? 200 : 255;
    style.materialScale = 9 + turn * 7 % 33;
    style.materialAngle = turn * 37 % 360;
    style.materialLightAngle = 225 + finish * 20;
    style.materialLightElevation = byteOf(30 + preset * 2);
    style.lightBlobScale = 90 + finish * 20;
    style.lightBlobAngle = finish * 25;
    style.noiseSeed = static_cast<std::uint32_t>(turn * 61);
    style.gradientDirection = static_cast<GradientDirection>(turn % 8);
    style.uvScale = 96;
    style.uvOffsetX = 5;
    style.uvOffsetY = -12;

    const float phase = finish % 2 == 1 ? 0.35F : 0.0F;
    const PerformanceProfile profile =
        finish % 4 == 2 ? PerformanceProfile::Reduced : PerformanceProfile::Full;
    return materialConstants(style, {37, 91, size.width, size.height}, phase, profile);
}

} // namespace vela::testing
