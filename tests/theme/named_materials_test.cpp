#include "vela/theme/named_materials.h"

#include <gtest/gtest.h>

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

TEST(NamedMaterials, HaveEverySubstanceOnce)
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

} // namespace
} // namespace vela
