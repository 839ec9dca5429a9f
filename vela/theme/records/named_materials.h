// The materials that a skin may name: each a preset with the tint and the light that make it look like the
// real thing. Their names are in normalised form (no "_", "-" or white space, lower case). Writers of skins
// read of them as substances, so as not to take them for the presets.
#pragma once

#include "vela/theme/records/surface_style.h"
#include "vela/theme/records/theme.h"
#include "vela/theme/records/vocabulary.h"

#include <span>
#include <string_view>

namespace vela {

struct NamedMaterial {
    std::wstring_view name;
    MaterialPreset preset = MaterialPreset::None;
    MaterialShading shading;

    // Strength 0 asks for nothing to be drawn.
    constexpr bool enabled() const noexcept { return shading.materialStrength >= 1; }
};

// All of them, kindred ones side by side: stones, gems, metals.
std::span<const NamedMaterial> namedMaterials() noexcept;

// Null when no material has the name. The name is taken as normalised.
const NamedMaterial* findNamedMaterial(std::wstring_view normalisedName) noexcept;

// Gives the surface the material: its preset, its shading as a whole and the mark that it is drawn. Fill,
// border and shape stay as they are.
void applyNamedMaterial(const NamedMaterial& material, SurfaceStyle& surface) noexcept;

// Makes the material that of the theme's main surfaces; the presets of controls and accents stay.
void applyNamedMaterial(const NamedMaterial& material, MaterialProfile& profile) noexcept;

} // namespace vela
