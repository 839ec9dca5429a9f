// Sheets of surfaces without any control: shapes, gradients, layers, icons.
#include "tools/gallery/gallery_gdi.h"
#include "vela/render/paint/paint.h"
#include "vela/render/surface/surface_painter.h"
#include "vela/theme/derive/derive_style_sheet.h"
#include "vela/theme/fields/palette.h"
#include "vela/theme/records/spellings.h"

#include <iterator>

namespace gallery {
namespace {

using vela::GradientDirection;
using vela::GradientKind;
using vela::hexColor;
using vela::Rect;
using vela::ShapeKind;
using vela::SurfaceStyle;
using vela::TextAlign;

constexpr std::wstring_view kShapeNames[] = {L"Rect",    L"RoundedRect", L"Pill",       L"Diamond",  L"Bevel",
                                             L"Octagon", L"Hexagon",     L"SlantRight", L"SlantLeft"};
constexpr std::wstring_view kModeNames[] = {L"Flat2d", L"Sculpted3d", L"Textured", L"BitmapPlates",
                                            L"WindowsClean"};
constexpr std::wstring_view kKindNames[] = {L"Linear", L"Reflected", L"Radial", L"Diamond", L"Conic"};
constexpr std::wstring_view kDirectionNames[] = {
    L"Vertical",     L"VerticalUp",          L"Horizontal", L"HorizontalLeft",
    L"DiagonalDown", L"DiagonalDownReverse", L"DiagonalUp", L"DiagonalUpReverse"};

constexpr std::int32_t kMargin = 24;
constexpr std::int32_t kTop = 72;

// A bare surface to which a sheet adds what it shows.
SurfaceStyle plain(ShapeKind shape)
{
    SurfaceStyle style;
    style.shape = shape;
    style.fill = hexColor(0x2A4B57);
    style.border = hexColor(0x6FA3A8);
    style.materialDepth = 0;
    return style;
}

SurfaceStyle withGradient(ShapeKind shape)
{
    SurfaceStyle style = plain(shape);
    style.useGradient = true;
    style.gradientStart = hexColor(0xE8B86D);
    style.gradientMid = hexColor(0xA8435C);
    style.gradientEnd = hexColor(0x1F3C68);
    return style;
}

struct Layer {
    std::wstring_view name;
    void (*turnOn)(SurfaceStyle& style);
};

constexpr Layer kLayers[] = {
    {L"fill", [](SurfaceStyle& style) { style.drawFill = true; }},
    {L"gradient", [](SurfaceStyle& style) { style.useGradient = true; }},
    {L"border", [](SurfaceStyle& style) { style.drawBorder = true; }},
    {L"shading", [](SurfaceStyle& style) { style.materialDepth = 96; }},
    {L"inner shadow", [](SurfaceStyle& style) { style.showInnerShadow = true; }},
    {L"noise", [](SurfaceStyle& style) { style.useNoise = true; }},
    {L"outline", [](SurfaceStyle& style) { style.showOutline = true; }},
    {L"shadow", [](SurfaceStyle& style) { style.showShadow = true; }},
    {L"glow", [](SurfaceStyle& style) { style.showGlow = true; }},
};

SurfaceStyle withoutLayers(ShapeKind shape)
{
    SurfaceStyle style = withGradient(shape);
    style.gradientStart = hexColor(0x3E7C86);
    style.gradientEnd = hexColor(0x1C3A47);
    style.useGradient = style.drawFill = style.drawBorder = false;
    style.noiseOpacity = 48;
    style.innerShadow = 170;
    style.innerShadowSize = 9;
    style.outline = hexColor(0xE2AA58);
    style.outlineWidth = 2;
    style.shadowOffsetX = 3;
    style.shadowOffsetY = 5;
    style.shadowOpacity = 130;
    style.glow = hexColor(0x6FD3E0);
    style.glowRadius = 9;
    style.glowOpacity = 120;
    return style;
}

} // namespace

bool drawShapeSheet(const std::wstring& path)
{
    constexpr vela::Size kCell{132, 84};
    constexpr auto kShapes = static_cast<std::int32_t>(std::size(kShapeNames));
    constexpr auto kModes = static_cast<std::int32_t>(std::size(kModeNames));
    Sheet sheet({2 * kMargin + kShapes * kCell.width, kTop + kModes * kCell.height + kMargin + 24}, {});
    sheet.title({kMargin, 20}, L"Shapes by surface mode");
    for (std::int32_t mode = 0; mode < kModes; ++mode) {
        const std::int32_t top = kTop + mode * (kCell.height + 4);
        sheet.caption({kMargin, top, 200, 16}, kModeNames[mode]);
        vela::Theme theme;
        theme.surfaceMode = static_cast<vela::SurfaceMode>(mode);
        SurfaceStyle style = vela::deriveStyleSheet(theme).find<vela::ButtonStyle>(L"primary").surface.normal;
        for (std::int32_t shape = 0; shape < kShapes; ++shape) {
            style.shape = static_cast<ShapeKind>(shape);
            const Rect cell{kMargin + shape * kCell.width, top + 16, kCell.width, kCell.height - 20};
            vela::paintSurface(sheet.dc(), inset(cell, 10, 6), style);
            if (mode == 0)
                sheet.caption({cell.x, top, cell.width, 16}, kShapeNames[shape], TextAlign::Center);
        }
    }
    return sheet.save(path);
}

bool drawGradientSheet(const std::wstring& path)
{
    constexpr vela::Size kCell{140, 84};
    constexpr auto kKinds = static_cast<std::int32_t>(std::size(kKindNames));
    constexpr auto kDirections = static_cast<std::int32_t>(std::size(kDirectionNames));
    Sheet sheet(
        {2 * kMargin + 80 + kDirections * kCell.width, kTop + 24 + 2 * kKinds * kCell.height + kMargin}, {});
    sheet.title({kMargin, 20}, L"Gradients: kind by direction, with two colours and with three");
    for (std::int32_t direction = 0; direction < kDirections; ++direction)
        sheet.caption({kMargin + 80 + direction * kCell.width, kTop, kCell.width, 16},
                      kDirectionNames[direction], TextAlign::Center);
    for (std::int32_t row = 0; row < 2 * kKinds; ++row) {
        const std::int32_t top = kTop + 20 + row * kCell.height;
        sheet.caption({kMargin, top, 80, kCell.height}, kKindNames[row / 2]);
        for (std::int32_t direction = 0; direction < kDirections; ++direction) {
            SurfaceStyle style = withGradient(ShapeKind::RoundedRect);
            style.drawBorder = false;
            style.useGradientMid = row % 2 == 1;
            style.gradientKind = static_cast<GradientKind>(row / 2);
            style.gradientDirection = static_cast<GradientDirection>(direction);
            vela::paintSurface(
                sheet.dc(),
                inset({kMargin + 80 + direction * kCell.width, top, kCell.width, kCell.height}, 6, 6), style);
        }
    }
    return sheet.save(path);
}

bool drawLayerSheet(const std::wstring& path)
{
    constexpr vela::Size kCell{136, 92};
    constexpr ShapeKind kShapes[] = {ShapeKind::Rect, ShapeKind::RoundedRect, ShapeKind::Pill,
                                     ShapeKind::Hexagon, ShapeKind::SlantRight};
    constexpr auto kCount = static_cast<std::int32_t>(std::size(kLayers));
    SheetColors colors;
    colors.background = hexColor(0x39434D);
    Sheet sheet({2 * kMargin + kCount * kCell.width, kTop + 20 + 10 * kCell.height + kMargin}, colors);
    sheet.title({kMargin, 20}, L"Layers: each alone, and all up to it");
    for (std::int32_t column = 0; column < kCount; ++column)
        sheet.caption({kMargin + column * kCell.width, kTop, kCell.width, 16}, kLayers[column].name,
                      TextAlign::Center);
    std::int32_t top = kTop + 20;
    for (const ShapeKind shape : kShapes) {
        SurfaceStyle stacked = withoutLayers(shape);
        for (std::int32_t column = 0; column < kCount; ++column) {
            SurfaceStyle alone = withoutLayers(shape);
            kLayers[column].turnOn(alone);
            kLayers[column].turnOn(stacked);
            const Rect cell{kMargin + column * kCell.width, top, kCell.width, kCell.height};
            vela::paintSurface(sheet.dc(), inset(cell, 14, 14), alone);
            if (alone.materialDepth > 0) // a style has light only where it has something to fall on
                vela::drawSpatialSurfaceShading(sheet.dc(), inset(cell, 14, 14), alone);
            vela::paintSurface(
                sheet.dc(), inset({cell.x, cell.y + kCell.height, cell.width, cell.height}, 14, 14), stacked);
        }
        top += 2 * kCell.height;
    }
    return sheet.save(path);
}

bool drawIconSheet(const std::wstring& path)
{
    constexpr std::int32_t kDpis[] = {96, 120, 144, 192};
    constexpr std::int32_t kCell = 72;
    Sheet sheet({2 * kMargin + vela::kIconCount * kCell, kTop + 5 * kCell + kMargin}, {});
    sheet.title({kMargin, 20}, L"Icons at 100, 125, 150 and 200 %, badges and rings");
    std::int32_t top = kTop;
    for (const std::int32_t dpi : kDpis) {
        for (std::int32_t icon = 0; icon < vela::kIconCount; ++icon) {
            const Rect cell{kMargin + icon * kCell, top, kCell, kCell};
            const std::int32_t side = 2 * vela::captionIconSize(dpi);
            vela::paintIcon(sheet.dc(), static_cast<vela::Icon>(icon), centered(cell, {side, side}), dpi,
                            sheet.colors().text);
        }
        top += kCell;
    }
    for (std::int32_t shape = 0; shape < 9; ++shape) {
        const Rect cell{kMargin + shape * kCell, top, kCell, kCell};
        paintBadge(sheet.dc(), centered(cell, {44, 28}), static_cast<ShapeKind>(shape), hexColor(0x6FA3A8));
        vela::paintFocusRing(sheet.dc(), centered(cell, {44, 28}), static_cast<ShapeKind>(shape), kDpi,
                             hexColor(0xE2AA58));
    }
    return sheet.save(path);
}

} // namespace gallery
