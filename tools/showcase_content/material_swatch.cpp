#include "tools/showcase_content/material_swatch.h"

namespace showcase {
namespace {

// How much of the tint's light a body sends back: facets shine above it, and a metal's sheen.
constexpr int bodyPercent(vela::MaterialPreset preset) noexcept
{
    switch (preset) {
    case vela::MaterialPreset::Gemstone: return 80;
    case vela::MaterialPreset::Metal:
    case vela::MaterialPreset::BrushedMetal: return 88;
    default: return 100;
    }
}

} // namespace

vela::Color bodyColor(const vela::NamedMaterial& material) noexcept
{
    const auto deepened = [percent = bodyPercent(material.preset)](std::uint8_t channel) {
        return static_cast<std::uint8_t>(channel * percent / 100);
    };
    const vela::Color tint = material.shading.materialTint;
    return vela::rgb(deepened(vela::redOf(tint)), deepened(vela::greenOf(tint)),
                     deepened(vela::blueOf(tint)));
}

} // namespace showcase
