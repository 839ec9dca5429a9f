// The named materials as they are seen: a swatch of each, its body's colour under the overlay.
#include "tools/showcase_content/material_swatch.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/theme/color/oklab.h"
#include "vela/theme/records/named_materials.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace vela {
namespace {

constexpr Size kPlate{72, 48};

using Swatch = std::vector<Oklab>;

Swatch swatchOf(const NamedMaterial& material)
{
    SurfaceStyle style;
    applyNamedMaterial(material, style);
    std::vector<Pixel> overlay(static_cast<std::size_t>(kPlate.width) * kPlate.height);
    renderMaterialOverlay(
        materialConstants(style, {0, 0, kPlate.width, kPlate.height}, 0, PerformanceProfile::Full),
        {{overlay.data(), kPlate, kPlate.width}, {}});
    const Pixel body = premultiplied(showcase::bodyColor(material), 255);
    Swatch swatch;
    for (const Pixel pixel : overlay) {
        const auto channel = [=](int shift) {
            const unsigned below = (body >> shift & 0xFF) * (255 - alphaOf(pixel)) / 255;
            return static_cast<std::uint8_t>((pixel >> shift & 0xFF) + below);
        };
        swatch.push_back(oklabOf(rgb(channel(16), channel(8), channel(0))));
    }
    return swatch;
}

// Mean distance of what lies at the same place; 0.02 is just visible.
float distance(const Swatch& one, const Swatch& other)
{
    float sum = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        sum +=
            std::hypot(one[i].lightness - other[i].lightness, one[i].a - other[i].a, one[i].b - other[i].b);
    return sum / static_cast<float>(one.size());
}

TEST(NamedMaterialLooks, AreToldApartWhenTheyAreSeen)
{
    const auto materials = namedMaterials();
    std::vector<Swatch> swatches;
    for (const NamedMaterial& material : materials)
        swatches.push_back(swatchOf(material));
    for (std::size_t i = 0; i < materials.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const bool oneSubstance = materials[i].shading == materials[j].shading;
            EXPECT_EQ(distance(swatches[i], swatches[j]) < 0.02F, oneSubstance)
                << std::string(materials[i].name.begin(), materials[i].name.end()) << " and "
                << std::string(materials[j].name.begin(), materials[j].name.end()) << ": "
                << distance(swatches[i], swatches[j]);
        }
    }
}

} // namespace
} // namespace vela
