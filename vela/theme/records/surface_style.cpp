#include "vela/theme/records/surface_style.h"

namespace vela {

void dimLight(MaterialShading& shading, int percent) noexcept
{
    for (std::uint8_t MaterialShading::*const light :
         {&MaterialShading::highlightOpacity, &MaterialShading::reflectionOpacity,
          &MaterialShading::materialDepth, &MaterialShading::backlightOpacity, &MaterialShading::innerGlow,
          &MaterialShading::rimLight, &MaterialShading::ambientOcclusion, &MaterialShading::edgeWear})
        shading.*light = static_cast<std::uint8_t>(shading.*light * percent / 100);
}

SurfaceStyle::SurfaceStyle() noexcept = default;
SurfaceStyle::SurfaceStyle(const SurfaceStyle& other) = default;
SurfaceStyle::SurfaceStyle(SurfaceStyle&& other) noexcept = default;
SurfaceStyle& SurfaceStyle::operator=(const SurfaceStyle& other) = default;
SurfaceStyle& SurfaceStyle::operator=(SurfaceStyle&& other) noexcept = default;
SurfaceStyle::~SurfaceStyle() = default;

bool operator==(const SurfaceStyle& left, const SurfaceStyle& right) = default;

bool carriesMaterial(const SurfaceStyle& style) noexcept
{
    return style.materialEnabled && style.material != MaterialPreset::None && style.materialStrength > 0;
}

} // namespace vela
