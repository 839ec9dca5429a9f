// Sheets of materials: every preset with every finish, and the materials that a skin may name.
#include "tools/gallery/gallery_gdi.h"
#include "tools/showcase_content/material_swatch.h"
#include "vela/render/paint/paint.h"
#include "vela/theme/color/oklab.h"
#include "vela/theme/records/named_materials.h"
#include "vela/theme/records/vocabulary.h"

#include <iterator>

namespace gallery {
namespace {

using vela::Color;
using vela::hexColor;
using vela::MaterialFinish;
using vela::MaterialPreset;
using vela::Rect;
using vela::ShapeKind;
using vela::SurfaceStyle;
using vela::TextAlign;

// A preset with the colour it is most often seen in.
struct Preset {
    std::wstring_view name;
    Color tint;
    Color fill;
};

constexpr Preset kPresets[] = {
    {L"Glass", hexColor(0x9CC7E0), hexColor(0x2C4658)},
    {L"FrostedGlass", hexColor(0xB8D4DE), hexColor(0x40545E)},
    {L"Gloss", hexColor(0xE0E4EA), hexColor(0x3A4048)},
    {L"Metal", hexColor(0xB8C0C8), hexColor(0x70787F)},
    {L"BrushedMetal", hexColor(0xC0C4C8), hexColor(0x7E8488)},
    {L"Plastic", hexColor(0x5C9CE0), hexColor(0x2F5F94)},
    {L"Rubber", hexColor(0x404448), hexColor(0x2A2C2F)},
    {L"Paper", hexColor(0xE8E0CC), hexColor(0xD8CFB8)},
    {L"CarbonFiber", hexColor(0x70767C), hexColor(0x25282B)},
    {L"ObsidianGlass", hexColor(0x585070), hexColor(0x14121A)},
    {L"BloodGloss", hexColor(0xB01028), hexColor(0x4A0814)},
    {L"AmberGlass", hexColor(0xFFA020), hexColor(0x8A4A08)},
    {L"LuminousGlass", hexColor(0x70B8F0), hexColor(0x18283A)},
    {L"LayeredGlass", hexColor(0x78B0A8), hexColor(0x243C3C)},
    {L"Gemstone", hexColor(0x20B070), hexColor(0x0C5034)},
    {L"ObsidianRelief", hexColor(0x904858), hexColor(0x181418)},
    {L"StoneGranite", hexColor(0xA09890), hexColor(0x6C6660)},
    {L"StoneMarble", hexColor(0xD8D4CC), hexColor(0xC4C0B8)},
};
constexpr std::wstring_view kFinishes[] = {L"Default", L"Polished", L"Brushed", L"Satin",
                                           L"Matte",   L"Rough",    L"Cracked", L"Hammered",
                                           L"Etched",  L"Frosted",  L"WetGloss"};

constexpr std::int32_t kMargin = 24;
constexpr std::int32_t kTop = 64;

SurfaceStyle bodyOf(Color fill, ShapeKind shape)
{
    SurfaceStyle style;
    style.shape = shape;
    style.fill = fill;
    style.border = vela::mixOklab(fill, hexColor(0x000000), 0.4F);
    return style;
}

SurfaceStyle presetStyle(const Preset& preset, MaterialPreset kind, MaterialFinish finish)
{
    SurfaceStyle style = bodyOf(preset.fill, ShapeKind::RoundedRect);
    style.material = kind;
    style.finish = finish;
    style.materialEnabled = true;
    style.materialTint = preset.tint;
    style.backlightColor = vela::mixOklab(preset.tint, hexColor(0xFFFFFF), 0.4F);
    style.backlightOpacity = style.innerGlow = 120;
    style.materialStrength = 255;
    style.highlightOpacity = 180;
    style.reflectionOpacity = 200;
    style.textureOpacity = 220;
    style.specular = 160;
    style.rimLight = 120;
    style.materialScale = 14;
    style.materialDepth = 20;
    return style;
}

// A title bar, a panel and a button of one material.
void drawNamedMaterial(Sheet& sheet, const Rect& tile, const vela::NamedMaterial& material)
{
    const auto piece = [&](const Rect& rect, ShapeKind shape) {
        SurfaceStyle style = bodyOf(showcase::bodyColor(material), shape);
        vela::applyNamedMaterial(material, style);
        vela::paintSurface(sheet.dc(), rect, style);
    };
    piece({tile.x, tile.y, tile.width, 26}, ShapeKind::Rect);
    piece({tile.x, tile.y + 32, 104, 72}, ShapeKind::RoundedRect);
    piece({tile.x + 112, tile.y + 32, tile.width - 112, 30}, ShapeKind::RoundedRect);
    piece({tile.x + 112, tile.y + 70, tile.width - 112, 34}, ShapeKind::Pill);
    sheet.caption({tile.x, tile.y + 106, tile.width, 16}, material.name);
}

} // namespace

bool drawPresetSheet(const std::wstring& path)
{
    constexpr vela::Size kCell{112, 64};
    constexpr auto kColumns = static_cast<std::int32_t>(std::size(kFinishes));
    constexpr auto kRows = static_cast<std::int32_t>(std::size(kPresets));
    Sheet sheet({2 * kMargin + 96 + kColumns * kCell.width, kTop + 20 + kRows * kCell.height + kMargin}, {});
    sheet.title({kMargin, 16}, L"Material presets by finish");
    for (std::int32_t finish = 0; finish < kColumns; ++finish)
        sheet.caption({kMargin + 96 + finish * kCell.width, kTop, kCell.width, 16}, kFinishes[finish],
                      TextAlign::Center);
    for (std::int32_t row = 0; row < kRows; ++row) {
        const std::int32_t top = kTop + 20 + row * kCell.height;
        const auto kind = static_cast<MaterialPreset>(row + 1);
        sheet.caption({kMargin, top, 96, kCell.height}, kPresets[row].name);
        for (std::int32_t finish = 0; finish < kColumns; ++finish)
            vela::paintSurface(
                sheet.dc(),
                inset({kMargin + 96 + finish * kCell.width, top, kCell.width, kCell.height}, 5, 4),
                presetStyle(kPresets[row], kind, static_cast<MaterialFinish>(finish)));
    }
    return sheet.save(path);
}

bool drawNamedMaterialSheet(const std::wstring& path)
{
    constexpr vela::Size kTile{184, 124};
    constexpr std::int32_t kGap = 16;
    constexpr std::int32_t kColumns = 8;
    const auto materials = vela::namedMaterials();
    const auto rows = (static_cast<std::int32_t>(materials.size()) + kColumns - 1) / kColumns;
    const std::int32_t width = kColumns * (kTile.width + kGap) - kGap;
    Sheet sheet({2 * kMargin + width, kTop + rows * (kTile.height + kGap) + kMargin}, {});
    sheet.title({kMargin, 16}, L"Named materials: title bar, panel and buttons");
    Flow flow({kMargin, kTop, width, 0}, kGap);
    for (const vela::NamedMaterial& material : materials)
        drawNamedMaterial(sheet, flow.place(kTile), material);
    return sheet.save(path);
}

} // namespace gallery
