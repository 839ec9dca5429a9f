#include "vela/theme/records/named_materials.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vela {
namespace {

// One material as the table spells it. Strengths and opacities are bytes, the scale pixels, angles degrees.
struct MaterialRow {
    std::wstring_view name;
    MaterialPreset preset;
    MaterialFinish finish;
    std::uint32_t tint;      // 0xRRGGBB
    std::uint32_t backlight; // 0xRRGGBB, light that comes back out of the depth
    std::uint8_t strength;
    std::uint8_t highlight;
    std::uint8_t reflection;
    std::uint8_t grain;
    std::uint8_t depth;
    std::uint8_t roughness;
    std::uint8_t specular;
    std::uint8_t texture;
    std::uint8_t rim;
    std::uint8_t edgeWear;
    std::uint8_t glow; // backlight and inner glow alike
    std::uint8_t occlusion;
    std::uint8_t lightElevation;
    std::int32_t scale;
    std::int32_t angle;
};

using enum MaterialPreset;
using enum MaterialFinish;

constexpr MaterialRow respelt(MaterialRow row, std::wstring_view name)
{
    row.name = name;
    return row;
}

// Polished metals have the wet finish for its sharp band of reflected light; facets of cut gems grow as the
// scale falls; a large depth roughens, because relief follows the grain.
// clang-format off
// name, preset, finish, tint, backlight
// str  hil  ref  grn  dep  rou  spc  tex  rim wear glow  occ elev scal angle
constexpr MaterialRow kMarble =
    {L"marble", StoneMarble, Polished, 0xEBE8E2, 0xFFFFFF,
     205, 150,  60,  10,   0,  40, 170, 235,  60,  10,  20,  40,  58,  30,  20};
constexpr MaterialRow kAluminium =
    {L"aluminium", BrushedMetal, Brushed, 0xC6CBD0, 0xFFFFFF,
     200, 160, 200,  60,   6, 100, 150, 220,  60,  50,   0,  60,  54,  16,   0};

constexpr MaterialRow kRows[] = {
    // Stones, polished or as quarried.
    {L"zula", StoneGranite, Hammered, 0x9A948F, 0xD8D0C8,
     250, 110, 110,  60,  34, 200,  10, 255,  20,  30,   0,  60,  52,   9,   0},
    kMarble,
    respelt(kMarble, L"mramor"),
    {L"slate", ObsidianRelief, Rough, 0x49535D, 0x8FA0AE,
     215, 120, 150, 110,  60, 230,  30, 235,  60,  60,   0, 110,  36,  26,   8},
    {L"basalt", StoneGranite, Rough, 0x303236, 0x6A6E74,
     235, 110, 150, 140, 120, 255,   0, 120,  10,  30,   0, 120,  40,   5,   0},
    {L"limestone", StoneGranite, Frosted, 0xCFC6B0, 0xFFF6DE,
     200,  60,  60,  90,  18, 220,   0, 150,  10,  20,   0,  60,  50,  22,   0},
    {L"travertine", StoneMarble, Cracked, 0xD3BA94, 0xFFEBC8,
     200,  80,  80,  60,  20, 150,  50, 170,  30,  20,   0,  70,  50,  14,  90},
    {L"sandstone", Paper, Rough, 0xC48F56, 0xF6D09A,
     110,  60,  90,  90,  60, 240,  10, 120,  10,  20,   0,  70,  44,  10,   0},
    {L"soapstone", StoneMarble, Satin, 0x727C76, 0xB4C4BC,
     170,  60,  40,  40,   8,  80,  40, 150,  30,  20,   0,  50,  48,  26,  40},
    {L"serpentine", ObsidianRelief, Polished, 0x4A7A45, 0x9ED08A,
     255, 110,  80,  40,  10, 120, 120, 255,  60,  20,  20,  70,  50,  30,  30},
    {L"quartzite", StoneGranite, Frosted, 0xD9CFCB, 0xFFFFFF,
     230, 140,  60,  60,  46, 110,  30, 230,  60,  30,  20,  40,  56,   7,  10},
    {L"onyx", ObsidianGlass, WetGloss, 0x141218, 0x7A7488,
     255, 230, 230,   4,   0,  10, 240,  60, 120,  30,   0,  80,  62,  24,  30},
    {L"alabaster", FrostedGlass, Frosted, 0xEAD9BC, 0xFFE9C0,
     150, 130, 110,  20,   0,  70,  70,  90,  80,  10,  90,  40,  60,  30,   0},
    {L"porphyry", StoneGranite, Polished, 0x6A2733, 0xD09098,
     255,  80,  90,  40,  20, 160,   0, 255,  40,  20,   0,  80,  50,  20,   0},
    {L"labradorite", LuminousGlass, Cracked, 0x3A4650, 0x2E9BE0,
     200,  90, 110,  60,  16,  60, 180, 150, 120,  20, 210,  90,  40,  18,  30},
    {L"malachite", StoneMarble, Polished, 0x0E8A5C, 0x46D39A,
     255, 130,  60,  10,   0, 120, 160, 255,  60,  10,  10,  70,  54,  14,  20},
    {L"lapislazuli", StoneGranite, Frosted, 0x1D3FA4, 0xE6C35A,
     255,  90,  60,  20,  14,  30,  90, 255,  60,  10,  10,  80,  54,  11,  20},
    {L"jasper", StoneMarble, Hammered, 0xA3401F, 0xE09060,
     215,  90,  60,  30,  10,  90,  90, 235,  50,  20,   0,  80,  50,   9,  60},
    {L"agate", LayeredGlass, Polished, 0x47190D, 0xFFEBD2,
     255, 110,  90,  10,   0,  40,  60, 255, 140,  40,  60,  50,  56,  20,  20},
    {L"tigereye", LuminousGlass, Brushed, 0x6A3A0E, 0xFFB52A,
     210, 170, 120,  40,   0,  50, 200, 255,  60,  10, 230, 120,  50,  10,   0},
    // Gems, clear and clouded.
    {L"diamond", Gemstone, Polished, 0xF4FAFF, 0xFFFFFF,
     235, 255, 230,   4,   0,   4, 255, 255, 230, 120,  80,  30,  66,  13,  20},
    {L"ruby", Gemstone, Polished, 0xBE0024, 0xFF4060,
     202, 200, 200,   6,   0,  10, 235, 235, 170,  60,  90,  60,  58,  15,  20},
    {L"sapphire", Gemstone, Polished, 0x0A46C8, 0x4F8CFF,
     204, 200, 200,   6,   0,  10, 235, 235, 170,  60,  90,  60,  58,  17,  30},
    {L"emerald", Gemstone, Polished, 0x00924E, 0x40E890,
     206, 190, 190,  10,   0,  20, 215, 225, 160,  60,  80,  70,  54,  12,  10},
    {L"amethyst", Gemstone, Polished, 0x984CCE, 0xC08CFF,
     200, 190, 190,   6,   0,  10, 220, 215, 160,  50, 100,  50,  58,  16,  20},
    {L"aquamarine", Gemstone, Polished, 0x86E6EC, 0xC8FBFF,
     190, 220, 190,   4,   0,   8, 225, 205, 170,  40,  90,  30,  62,  19,  20},
    {L"topaz", Gemstone, Polished, 0xFFB236, 0xFFE09A,
     204, 210, 200,   4,   0,   8, 235, 230, 180,  60, 110,  40,  62,  14,  20},
    {L"garnet", Gemstone, WetGloss, 0x74182A, 0xD02848,
     255, 190, 210,   6,   0,  20, 150, 190, 120,  60,  50, 110,  54,  26,  20},
    {L"opal", LuminousGlass, Default, 0xA9E8DC, 0xFF9EC8,
     190, 150, 110,  60,   0,  30, 180, 120, 170,  40, 230,  20,  64,  26,  40},
    {L"peridot", Gemstone, Polished, 0xAEDA34, 0xE2FF8A,
     196, 200, 190,   6,   0,  12, 215, 215, 150,  40,  90,  50,  60,  18,  30},
    {L"tourmaline", Gemstone, WetGloss, 0xC62C96, 0x46D08C,
     208, 190, 200,   6,   0,  20, 200, 230, 150,  50, 110,  60,  58,  24,  90},
    {L"citrine", Gemstone, Polished, 0xFFE452, 0xFFF0A0,
     192, 220, 190,  20,   0,  12, 220, 205, 150,  40, 110,  40,  62,  21,  20},
    {L"turquoise", StoneMarble, Cracked, 0x30B7B4, 0xA8F4EA,
     175,  90,  60,  40,   6, 110,  70, 150,  40,  20,   0,  70,  50,  11,  20},
    {L"moonstone", LuminousGlass, Satin, 0xD5DEEC, 0x7FB0FF,
     190, 170, 130,  10,   0,  20, 190,  70, 200,  40, 210,  30,  66,  26, 320},
    {L"sunstone", FrostedGlass, Hammered, 0xDC7638, 0xFFC890,
     215, 140,  90,  70,  16,  40, 255, 255, 100,  60, 120,  60,  58,  14,  40},
    {L"spinel", Gemstone, Polished, 0xF45C7C, 0xFF9AB4,
     204, 200, 190,   6,   0,  10, 230, 220, 160,  60,  90,  50,  58,  11,  40},
    {L"zircon", Gemstone, Polished, 0x58B6F4, 0xD0F0FF,
     222, 240, 220,   4,   0,   4, 255, 245, 210, 110,  90,  40,  64,  20,  50},
    {L"tanzanite", Gemstone, Polished, 0x5A36B8, 0x9C86FF,
     206, 190, 200,   6,   0,  10, 200, 230, 160,  50, 100,  60,  56,  22,  60},
    {L"alexandrite", Gemstone, WetGloss, 0x2C7C78, 0xB04890,
     214, 190, 210,   6,   0,  20, 190, 235, 150,  60, 120,  80,  58,  28,  30},
    {L"jade", FrostedGlass, WetGloss, 0x4C9C6C, 0xB4F0C4,
     165, 150, 120,  14,   0,  50, 150,  60, 100,  20,  80,  60,  56,  24,   0},
    // Metals.
    {L"iron", Metal, Rough, 0x55575B, 0x9EA2A8,
     230, 100, 150, 200, 110, 210,  40, 150,  40,  60,   0, 140,  40,   8,  20},
    {L"steel", BrushedMetal, Satin, 0x86909A, 0xD8E2EC,
     255, 230, 255,  50,  10, 110, 160,  90,  60,  90,   0,  90,  48,  20,  90},
    {L"stainlesssteel", BrushedMetal, Brushed, 0xB0B7BD, 0xF0F6FA,
     240, 220, 255,  30,   4,  70, 200, 255,  70,  70,   0,  70,  52,  20,  90},
    {L"carbonsteel", Metal, Etched, 0x5A636C, 0xA8B4C0,
     255, 170, 255,  60,   8, 120, 140, 230,  60, 110,   0, 120,  44,  20,  30},
    {L"chrome", Gloss, WetGloss, 0xC9D3DC, 0xFFFFFF,
     236, 255, 255,   0,   0,   2, 255,  40, 120, 160,   0, 110,  66,  24,  20},
    {L"nickel", Metal, Satin, 0xB3AD9A, 0xF4F0E0,
     230, 190, 255,  10,   0,  50, 210,  60,  70,  70,   0,  80,  56,  24,  20},
    {L"titanium", BrushedMetal, Matte, 0x7D7A74, 0xC8D0DC,
     215, 150, 190,  80,  44, 140, 110,  60,  50,  50,   0,  90,  46,  14,   0},
    kAluminium,
    respelt(kAluminium, L"aluminum"),
    {L"magnesium", Metal, Matte, 0xA3A5A0, 0xE8EAE4,
     190,  90, 130, 120,  70, 190,  50,  60,  30,  20,   0,  60,  48,  10,   0},
    {L"copper", Metal, WetGloss, 0xB5643A, 0xFFBE90,
     255, 230, 255,  16,   0,  60, 200,  60,  80, 110,  10, 100,  54,  22,  20},
    {L"bronze", Metal, Hammered, 0x84602F, 0xE0B070,
     255, 180, 220,  50,  16, 110, 140, 255,  60, 140,   0, 130,  46,  14,  20},
    {L"brass", BrushedMetal, Brushed, 0xB9983C, 0xF8E090,
     255, 220, 255,  24,   2,  70, 190, 230,  70, 110,   0,  90,  54,  22,  90},
    {L"gold", Metal, WetGloss, 0xE2A91F, 0xFFE28A,
     255, 255, 255,   6,   0,  24, 250,  60, 110, 160,  20,  90,  60,  24,  20},
    {L"rosegold", Metal, WetGloss, 0xD4937F, 0xFFD8CC,
     235, 210, 255,   8,   0,  30, 230,  50,  90,  90,  10,  70,  58,  24,  20},
    {L"whitegold", Metal, WetGloss, 0xDDCFA2, 0xFFFFF0,
     255, 255, 255,   6,   0,  20, 240,  50, 100, 110,  10,  60,  62,  24,  20},
    {L"silver", Metal, WetGloss, 0xC2CAD4, 0xFFFFFF,
     255, 255, 255,   4,   0,  14, 250,  50, 110, 150,   0,  80,  62,  24,  20},
    {L"platinum", BrushedMetal, WetGloss, 0xB4B6B2, 0xFFFFFF,
     255, 240, 255,   6,   0,  30, 235,  40, 100, 110,   0, 100,  60,  28,  30},
    {L"palladium", Gloss, Satin, 0xB5B1AC, 0xFFF8F0,
     170, 190, 200,  10,   0,  40, 210,  50,  90,  70,   0,  70,  56,  24,  20},
    {L"tungsten", Metal, Polished, 0x474B4F, 0x98A4B0,
     255, 200, 255,  40,   4,  80, 200,  90,  60, 160,   0, 140,  42,  18,  30},
    {L"zinc", Metal, Hammered, 0x95A0A8, 0xD8E4EE,
     255, 120, 160, 110,   8, 170,  80, 255,  40,  40,   0,  70,  48,  26,   0},
};
// clang-format on

constexpr NamedMaterial materialOf(const MaterialRow& row)
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
    shading.edgeWear = row.edgeWear;
    shading.backlightOpacity = row.glow;
    shading.innerGlow = row.glow;
    shading.ambientOcclusion = row.occlusion;
    shading.materialLightElevation = row.lightElevation;
    shading.materialScale = row.scale;
    shading.materialAngle = row.angle;
    shading.finish = row.finish;
    return material;
}

constexpr auto kNamedMaterials = [] {
    std::array<NamedMaterial, std::size(kRows)> materials;
    std::transform(std::begin(kRows), std::end(kRows), materials.begin(), materialOf);
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
