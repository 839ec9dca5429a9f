#include "vela/theme/named_materials.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vela {
namespace {

// One substance as the table spells it. Strengths and opacities are bytes, lengths pixels, angles degrees.
struct Substance {
    std::wstring_view name;
    MaterialPreset preset;
    std::uint32_t tint;      // 0xRRGGBB, the colour of the body
    std::uint32_t backlight; // 0xRRGGBB, the colour of light that comes back out of the depth
    std::uint8_t strength;
    std::uint8_t highlight;
    std::uint8_t reflection;
    std::uint8_t grain;
    std::uint8_t depth;
    std::uint8_t roughness;
    std::uint8_t specular;
    std::uint8_t texture;
    std::uint8_t rim;
    std::uint8_t wear;
    std::uint8_t glow; // light from within: backlight and inner glow alike
    std::uint8_t occlusion;
    std::uint8_t elevation;
    std::int32_t scale;
    std::int32_t angle;
    MaterialFinish finish;
};

using Preset = MaterialPreset;
using Finish = MaterialFinish;

// clang-format off
constexpr Substance kSubstances[] = {
    //                                                              str  hil  ref  grn  dep  rou  spc  tex  rim  wea  glo  occ elev scale angle
    // Stones, polished or as quarried.
    {L"zula",         Preset::StoneGranite,   0x8F8A86, 0xCFC8C0, 190,  90,  70,  60,  70, 150,  90, 230,  40,  30,   0,  60, 52,  14,   0, Finish::Polished},
    {L"marble",       Preset::StoneMarble,    0xE9E6DF, 0xFFFFFF, 200, 150,  60,  10,  10,  40, 170, 235,  60,  10,  20,  40, 58,  30,  20, Finish::Polished},
    {L"mramor",       Preset::StoneMarble,    0xE9E6DF, 0xFFFFFF, 200, 150,  60,  10,  10,  40, 170, 235,  60,  10,  20,  40, 58,  30,  20, Finish::Polished},
    {L"slate",        Preset::ObsidianRelief, 0x4A545E, 0x8FA0AE, 170,  60,  60, 110,  96, 210,  30, 130,  30,  40,   0,  90, 38,  20,   8, Finish::Rough},
    {L"basalt",       Preset::StoneGranite,   0x34363A, 0x6A6E74, 185,  50,  80, 140, 130, 235,  20, 120,  20,  30,   0, 110, 40,   6,   0, Finish::Rough},
    {L"limestone",    Preset::StoneGranite,   0xCFC4AC, 0xFFF6DE, 150,  70,  50,  90,  80, 200,  20, 110,  20,  20,   0,  50, 50,   8,   0, Finish::Matte},
    {L"travertine",   Preset::StoneMarble,    0xD2B993, 0xFFEBC8, 185,  80,  60,  60,  46, 150,  50, 200,  30,  20,   0,  60, 50,  22,  90, Finish::Cracked},
    {L"sandstone",    Preset::Paper,          0xC9985E, 0xF6D09A, 180,  60,  70, 200, 150, 240,  10,  90,  10,  20,   0,  60, 44,  10,   0, Finish::Rough},
    {L"soapstone",    Preset::StoneMarble,    0x6E7A74, 0xB4C4BC, 150,  60,  40,  40,  20, 120,  60,  90,  30,  20,   0,  50, 48,  26,  40, Finish::Satin},
    {L"serpentine",   Preset::ObsidianRelief, 0x3F6B45, 0x9ED08A, 200,  90,  60,  40,  26,  90, 120, 220,  60,  20,  20,  60, 50,  12,  30, Finish::Polished},
    {L"quartzite",    Preset::LayeredGlass,   0xD8D4D6, 0xFFFFFF, 160, 120,  80,  50,  60, 110, 160, 150,  60,  30,  20,  40, 56,  16,  10, Finish::Frosted},
    {L"onyx",         Preset::ObsidianGlass,  0x15131A, 0x7A7488, 210, 210, 190,   4,   4,  10, 240,  60, 120,  20,   0,  80, 62,  24,  30, Finish::WetGloss},
    {L"alabaster",    Preset::FrostedGlass,   0xF2E6D0, 0xFFE9C0, 140, 110,  90,  30,  10,  70,  70,  60,  80,  10,  90,  30, 60,  28,   0, Finish::Frosted},
    {L"porphyry",     Preset::StoneGranite,   0x6E2B34, 0xD09098, 210,  80,  60,  40,  40, 110, 110, 250,  40,  20,   0,  70, 50,  22,   0, Finish::Polished},
    {L"labradorite",  Preset::LuminousGlass,  0x3A4650, 0x2E9BE0, 190,  90,  90,  60,  30,  60, 180, 130, 120,  20, 190,  80, 40,  18,  30, Finish::Cracked},
    {L"malachite",    Preset::StoneMarble,    0x0F7A52, 0x46D39A, 225, 110,  60,  10,   8,  60, 160, 255,  60,  10,  10,  60, 54,  14,  20, Finish::Polished},
    {L"lapislazuli",  Preset::StoneGranite,   0x1C3F9E, 0xE6C35A, 215,  90,  60,  20,  20,  60, 190, 225,  60,  10,  10,  70, 54,  12,  20, Finish::Polished},
    {L"jasper",       Preset::StoneMarble,    0x9C3B22, 0xE09060, 205, 100,  60,  30,  20,  90, 120, 210,  50,  20,   0,  70, 50,  18,  60, Finish::Satin},
    {L"agate",        Preset::LayeredGlass,   0xB36A4A, 0xFFD9B8, 215, 130,  90,  10,   8,  60, 190, 255,  90,  20,  60,  50, 56,  20,  20, Finish::Polished},
    {L"tigereye",     Preset::AmberGlass,     0x9A5E14, 0xFFC24A, 215, 130, 150,  40,  10,  50, 200, 200,  80,  10,  60,  60, 50,  10,  90, Finish::Brushed},
    // Gems, clear and clouded.
    {L"diamond",      Preset::Gemstone,       0xE8F4FF, 0xFFFFFF, 210, 220, 200,   4,   4,   4, 255, 240, 200,  60,  80,  30, 66,  34,  20, Finish::Polished},
    {L"ruby",         Preset::Gemstone,       0xBE0024, 0xFF4060, 202, 180, 150,   6,   6,  10, 235, 225, 150,  40,  90,  60, 58,  26,  20, Finish::Polished},
    {L"sapphire",     Preset::Gemstone,       0x0F3FBF, 0x4F8CFF, 204, 180, 150,   6,   6,  10, 235, 225, 150,  40,  90,  60, 58,  24,  30, Finish::Polished},
    {L"emerald",      Preset::Gemstone,       0x008A4A, 0x40E890, 204, 160, 140,  10,   6,  20, 215, 215, 140,  40,  80,  70, 54,  20,  10, Finish::Polished},
    {L"amethyst",     Preset::Gemstone,       0x7A3FC0, 0xC08CFF, 196, 170, 140,   6,   6,  10, 220, 205, 140,  36, 100,  50, 58,  28,  20, Finish::Polished},
    {L"aquamarine",   Preset::Gemstone,       0x66CFD8, 0xC8FBFF, 180, 190, 150,   4,   4,   8, 225, 175, 150,  30,  90,  30, 62,  38,  20, Finish::Polished},
    {L"topaz",        Preset::Gemstone,       0xF0A030, 0xFFE09A, 198, 200, 160,   4,   4,   8, 235, 215, 160,  40, 110,  40, 62,  30,  20, Finish::Polished},
    {L"garnet",       Preset::BloodGloss,     0x6E0A1E, 0xD02848, 214, 190, 190,  10,   6,  20, 220, 160, 120,  20,  50,  80, 54,  24,  20, Finish::WetGloss},
    {L"opal",         Preset::LuminousGlass,  0x9FE8DC, 0xFF9EC8, 176, 150, 110,  60,   4,  30, 180, 120, 150,  10, 210,  20, 64,  26,  40, Finish::Default},
    {L"peridot",      Preset::Gemstone,       0x9CC42C, 0xE2FF8A, 190, 180, 140,   6,   6,  12, 215, 190, 140,  30,  90,  50, 60,  22,  30, Finish::Polished},
    {L"tourmaline",   Preset::LayeredGlass,   0xD03A86, 0x46D08C, 212, 170, 140,   6,   6,  20, 220, 220, 130,  30, 110,  50, 58,  26,  90, Finish::Polished},
    {L"citrine",      Preset::AmberGlass,     0xF2C230, 0xFFF0A0, 186, 190, 150,  20,   4,  12, 220, 150, 120,  20, 110,  40, 62,  26,  20, Finish::Polished},
    {L"turquoise",    Preset::StoneMarble,    0x35B8B0, 0xA8F4EA, 170,  90,  50,  40,  20, 110,  70, 120,  40,  20,   0,  60, 50,  14,  20, Finish::Cracked},
    {L"moonstone",    Preset::LuminousGlass,  0xDDE4F0, 0x9CC4FF, 170, 160, 120,  10,   4,  20, 190,  70, 180,  10, 190,  20, 66,  26, 320, Finish::Satin},
    {L"sunstone",     Preset::AmberGlass,     0xE07840, 0xFFC890, 200, 150, 140, 140,  20,  40, 230, 190, 100,  20, 120,  40, 58,  16,  40, Finish::Hammered},
    {L"spinel",       Preset::Gemstone,       0xE0436E, 0xFF9AB4, 198, 180, 150,   6,   6,  10, 230, 200, 150,  40,  90,  50, 58,  18,  40, Finish::Polished},
    {L"zircon",       Preset::Gemstone,       0x4FB0E8, 0xD0F0FF, 206, 220, 190,   4,   4,   4, 255, 230, 180,  60,  90,  40, 64,  32,  50, Finish::Polished},
    {L"tanzanite",    Preset::Gemstone,       0x4A3CB0, 0x9C86FF, 202, 170, 150,   6,   6,  10, 230, 220, 150,  36, 100,  60, 56,  30,  60, Finish::Polished},
    {L"alexandrite",  Preset::LayeredGlass,   0x2E7A62, 0xB04890, 214, 170, 140,   6,   6,  20, 230, 230, 140,  30, 120,  60, 58,  24,  30, Finish::Polished},
    {L"jade",         Preset::FrostedGlass,   0x4E9A6A, 0xB4F0C4, 170, 150, 110,  30,   8,  50, 150,  80, 100,  10,  80,  40, 56,  24,   0, Finish::WetGloss},
    // Metals.
    {L"iron",         Preset::Metal,          0x5A5C60, 0x9EA2A8, 190,  90, 130, 150, 120, 210,  60, 150,  40,  80,   0, 120, 40,  12,  20, Finish::Rough},
    {L"steel",        Preset::BrushedMetal,   0x8C949C, 0xD8E2EC, 190, 150, 170,  50,  20, 110, 160, 150,  60,  60,   0,  70, 48,  20,  90, Finish::Satin},
    {L"stainlesssteel", Preset::BrushedMetal, 0xB4BABF, 0xF0F6FA, 200, 170, 180,  30,  12,  70, 200, 220,  70,  50,   0,  50, 52,  20,  90, Finish::Brushed},
    {L"carbonsteel",  Preset::Metal,          0x5E666E, 0xA8B4C0, 196, 130, 190,  60,  30, 120, 140, 130,  60,  70,   0,  90, 44,  20,  30, Finish::Etched},
    {L"chrome",       Preset::Gloss,          0xD4DCE4, 0xFFFFFF, 236, 255, 230,   0,   2,   2, 255,  40, 120,  90,   0,  70, 66,  24,  20, Finish::WetGloss},
    {L"nickel",       Preset::Metal,          0xB8B4A6, 0xF4F0E0, 200, 180, 200,  10,   4,  50, 210,  60,  70,  50,   0,  60, 56,  24,  20, Finish::Satin},
    {L"titanium",     Preset::BrushedMetal,   0x878680, 0xC8D0DC, 180, 120, 140,  80,  50, 140, 110, 110,  50,  40,   0,  70, 46,  14,   0, Finish::Matte},
    {L"aluminium",    Preset::BrushedMetal,   0xC9CDD1, 0xFFFFFF, 176, 160, 150,  60,  18, 100, 150, 190,  60,  30,   0,  40, 54,  16,   0, Finish::Brushed},
    {L"aluminum",     Preset::BrushedMetal,   0xC9CDD1, 0xFFFFFF, 176, 160, 150,  60,  18, 100, 150, 190,  60,  30,   0,  40, 54,  16,   0, Finish::Brushed},
    {L"magnesium",    Preset::Metal,          0xA6A8A4, 0xE8EAE4, 160,  90, 110, 120,  90, 190,  50,  90,  30,  20,   0,  50, 48,  10,   0, Finish::Matte},
    {L"copper",       Preset::Metal,          0xB8693D, 0xFFBE90, 210, 190, 200,  16,  10,  60, 200,  90,  80,  60,  10,  70, 54,  22,  20, Finish::Polished},
    {L"bronze",       Preset::Metal,          0x8A6236, 0xE0B070, 205, 150, 170,  50,  40, 110, 140, 190,  60,  90,   0, 100, 46,  16,  20, Finish::Hammered},
    {L"brass",        Preset::BrushedMetal,   0xBFA04A, 0xF8E090, 205, 180, 180,  24,  10,  70, 190, 190,  70,  60,   0,  60, 54,  22,  90, Finish::Brushed},
    {L"gold",         Preset::Metal,          0xE0A92A, 0xFFE28A, 220, 230, 220,   6,   4,  24, 250,  60, 110,  70,  20,  60, 60,  24,  20, Finish::Polished},
    {L"rosegold",     Preset::Metal,          0xD89A88, 0xFFD8CC, 206, 200, 200,   8,   4,  30, 230,  50,  90,  50,  10,  50, 58,  24,  20, Finish::Satin},
    {L"whitegold",    Preset::Metal,          0xDCD6C4, 0xFFFFF0, 206, 220, 210,   6,   4,  20, 240,  50, 100,  50,  10,  40, 62,  24,  20, Finish::Polished},
    {L"silver",       Preset::Metal,          0xCED4DA, 0xFFFFFF, 224, 240, 230,   4,   4,  14, 250,  50, 110,  80,   0,  50, 62,  24,  20, Finish::Polished},
    {L"platinum",     Preset::BrushedMetal,   0xC4C6C4, 0xFFFFFF, 210, 220, 220,   6,   4,  30, 235,  60, 100,  50,   0,  50, 60,  28,  30, Finish::Satin},
    {L"palladium",    Preset::Gloss,          0xBEBAB6, 0xFFF8F0, 196, 200, 190,  10,   4,  40, 210,  50,  90,  40,   0,  50, 56,  24,  20, Finish::Satin},
    {L"tungsten",     Preset::Metal,          0x4C5054, 0x98A4B0, 214, 150, 220,  40,  20,  80, 200,  90,  60,  90,   0, 110, 42,  18,  30, Finish::Polished},
    {L"zinc",         Preset::Metal,          0x98A2AA, 0xD8E4EE, 186, 120, 130, 110,  60, 170,  80, 220,  40,  30,   0,  60, 48,  20,   0, Finish::Frosted},
};
// clang-format on

constexpr NamedMaterial materialOf(const Substance& row)
{
    NamedMaterial material{row.name, row.preset, {}};
    MaterialShading& shading = material.shading;
    shading.materialTint = hexColor(row.tint);
    shading.backlightColor = hexColor(row.backlight);
    shading.materialStrength = row.strength;
    shading.highlightOpacity = row.highlight;
    shading.reflectionOpacity = row.reflection;
    shading.grainOpacity = row.grain;
    shading.materialDepth = row.depth;
    shading.roughness = row.roughness;
    shading.specular = row.specular;
    shading.textureOpacity = row.texture;
    shading.rimLight = row.rim;
    shading.edgeWear = row.wear;
    shading.backlightOpacity = row.glow;
    shading.innerGlow = row.glow;
    shading.ambientOcclusion = row.occlusion;
    shading.materialLightElevation = row.elevation;
    shading.materialScale = row.scale;
    shading.materialAngle = row.angle;
    shading.finish = row.finish;
    return material;
}

constexpr auto kNamedMaterials = [] {
    std::array<NamedMaterial, std::size(kSubstances)> materials;
    std::transform(std::begin(kSubstances), std::end(kSubstances), materials.begin(), materialOf);
    return materials;
}();

} // namespace

std::span<const NamedMaterial> namedMaterials() noexcept { return kNamedMaterials; }

const NamedMaterial* findNamedMaterial(std::wstring_view normalisedName) noexcept
{
    const auto* found =
        std::find_if(kNamedMaterials.begin(), kNamedMaterials.end(),
                     [=](const NamedMaterial& material) { return material.name == normalisedName; });
    return found == kNamedMaterials.end() ? nullptr : found;
}

void applyNamedMaterial(const NamedMaterial& material, SurfaceStyle& surface) noexcept
{
    static_cast<MaterialShading&>(surface) = material.shading;
    surface.material = material.preset;
    surface.materialEnabled = material.enabled();
}

void applyNamedMaterial(const NamedMaterial& material, MaterialProfile& profile) noexcept
{
    static_cast<MaterialShading&>(profile) = material.shading;
    profile.surface = material.preset;
}

} // namespace vela
