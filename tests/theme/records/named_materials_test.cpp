#include "vela/theme/color/oklab.h"
#include "vela/theme/records/named_materials.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <string>

namespace vela {
namespace {

constexpr std::wstring_view kNames[] = {
    L"diamond",        L"zula",        L"marble",      L"mramor",      L"slate",      L"basalt",
    L"limestone",      L"travertine",  L"sandstone",   L"soapstone",   L"serpentine", L"quartzite",
    L"onyx",           L"alabaster",   L"porphyry",    L"labradorite", L"malachite",  L"lapislazuli",
    L"jasper",         L"agate",       L"tigereye",    L"ruby",        L"sapphire",   L"emerald",
    L"amethyst",       L"aquamarine",  L"topaz",       L"garnet",      L"opal",       L"peridot",
    L"tourmaline",     L"citrine",     L"turquoise",   L"moonstone",   L"sunstone",   L"spinel",
    L"zircon",         L"tanzanite",   L"alexandrite", L"jade",        L"iron",       L"steel",
    L"stainlesssteel", L"carbonsteel", L"chrome",      L"nickel",      L"titanium",   L"aluminium",
    L"aluminum",       L"magnesium",   L"copper",      L"bronze",      L"brass",      L"gold",
    L"rosegold",       L"whitegold",   L"silver",      L"platinum",    L"palladium",  L"tungsten",
    L"zinc",
};

TEST(NamedMaterials, HaveEveryMaterialOnce)
{
    std::set<std::wstring_view> listed;
    for (const NamedMaterial& material : namedMaterials())
        listed.insert(material.name);
    EXPECT_EQ(listed, std::set<std::wstring_view>(std::begin(kNames), std::end(kNames)));
    EXPECT_EQ(namedMaterials().size(), std::size(kNames));
}

TEST(NamedMaterials, AreFoundByTheirNormalisedNameAlone)
{
    for (const std::wstring_view name : kNames) {
        ASSERT_NE(findNamedMaterial(name), nullptr);
        EXPECT_EQ(findNamedMaterial(name)->name, name);
        EXPECT_NE(findNamedMaterial(name)->preset, MaterialPreset::None);
        EXPECT_TRUE(findNamedMaterial(name)->enabled());
    }
    for (const std::wstring_view name : {L"", L"Ruby", L"rub", L"rubyy", L"stainless_steel", L"granite"})
        EXPECT_EQ(findNamedMaterial(name), nullptr);
}

TEST(NamedMaterials, GiveASurfaceTheirWholeShadingAndLeaveItsColoursAlone)
{
    SurfaceStyle surface;
    surface.fill = hexColor(0x123456);
    surface.shape = ShapeKind::Hexagon;
    surface.uvScale = 77;
    applyNamedMaterial(*findNamedMaterial(L"ruby"), surface);

    EXPECT_EQ(surface.material, MaterialPreset::Gemstone);
    EXPECT_TRUE(surface.materialEnabled);
    EXPECT_EQ(surface.materialTint, hexColor(0xBE0024));
    EXPECT_EQ(surface.materialStrength, 202);
    EXPECT_EQ(surface.fill, hexColor(0x123456));
    EXPECT_EQ(surface.shape, ShapeKind::Hexagon);
    EXPECT_EQ(surface.uvScale, 77);
}

TEST(NamedMaterials, AreNotDrawnAtStrengthZero)
{
    NamedMaterial faint = *findNamedMaterial(L"gold");
    faint.shading.materialStrength = 0;
    SurfaceStyle surface;
    applyNamedMaterial(faint, surface);
    EXPECT_FALSE(surface.materialEnabled);
    EXPECT_EQ(surface.material, MaterialPreset::Metal);
}

TEST(NamedMaterials, BecomeTheMainSurfaceOfAProfile)
{
    MaterialProfile profile;
    profile.control = MaterialPreset::Glass;
    applyNamedMaterial(*findNamedMaterial(L"marble"), profile);
    EXPECT_EQ(profile.surface, MaterialPreset::StoneMarble);
    EXPECT_EQ(profile.control, MaterialPreset::Glass);
    EXPECT_EQ(profile.materialStrength, findNamedMaterial(L"marble")->shading.materialStrength);
}

// How far two substances look apart: their colours (0.02 is just visible), the mean difference of what shapes
// their light, and a step for another texture or another finish.
float difference(const NamedMaterial& one, const NamedMaterial& other)
{
    using Shading = MaterialShading;
    constexpr std::uint8_t Shading::*kLight[] = {&Shading::materialStrength,  &Shading::highlightOpacity,
                                                 &Shading::reflectionOpacity, &Shading::grainOpacity,
                                                 &Shading::materialDepth,     &Shading::roughness,
                                                 &Shading::specular,          &Shading::textureOpacity,
                                                 &Shading::edgeWear,          &Shading::innerGlow};
    float light = 0;
    for (const auto member : kLight)
        light += std::fabs(static_cast<float>(one.shading.*member - other.shading.*member)) / 255;
    return visualDistance(one.shading.materialTint, other.shading.materialTint) +
           light / static_cast<float>(std::size(kLight)) + (one.preset == other.preset ? 0.0F : 0.1F) +
           (one.shading.finish == other.shading.finish ? 0.0F : 0.05F);
}

bool areSpellingsOfOne(std::wstring_view one, std::wstring_view other)
{
    constexpr std::wstring_view kTwins[][2] = {{L"marble", L"mramor"}, {L"aluminium", L"aluminum"}};
    return std::any_of(std::begin(kTwins), std::end(kTwins), [=](const auto& twins) {
        return (one == twins[0] && other == twins[1]) || (one == twins[1] && other == twins[0]);
    });
}

TEST(NamedMaterials, LookAlikeOnlyWhenTheyAreTwoSpellingsOfOne)
{
    const auto materials = namedMaterials();
    for (std::size_t i = 0; i < materials.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const NamedMaterial& one = materials[i];
            const NamedMaterial& other = materials[j];
            SCOPED_TRACE(std::string(one.name.begin(), one.name.end()) + " and " +
                         std::string(other.name.begin(), other.name.end()));
            if (areSpellingsOfOne(one.name, other.name)) {
                EXPECT_EQ(one.preset, other.preset);
                EXPECT_EQ(one.shading, other.shading);
            } else {
                EXPECT_GE(difference(one, other), 0.1F);
            }
        }
    }
}

} // namespace
} // namespace vela
