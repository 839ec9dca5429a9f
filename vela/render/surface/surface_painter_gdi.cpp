#include "vela/render/surface/surface_painter.h"

#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/bitmaps/surface_outline.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/kept_pictures_gdi.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/layers/layer_parts.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/materials/material_gpu_d3d11.h"
#include "vela/render/materials/material_overlay_gdi.h"
#include "vela/render/surface/kept_surface.h"

#include <algorithm>

namespace vela {
namespace {

// One surface while it is painted.
struct Surface {
    HDC dc;
    Rect rect;
    const SurfaceStyle& style;
    const LoadedBitmaps& bitmaps;
};

bool isMaterial(const PaintStep& step) noexcept { return step.layer == SurfaceLayer::Material; }

bool costsPixels(SurfaceLayer layer) noexcept { return isPixelLayer(layer) || layer == SurfaceLayer::Bitmap; }

void paintPixels(const Surface& surface, const PaintStep& step)
{
    const SurfaceStyle& style = surface.style;
    const RunMask* const outline = surfaceOutline(style, sizeOf(step.rect), surface.bitmaps);
    const Coverage coverage = outline ? Coverage(*outline) : Coverage(style.shape, sizeOf(step.rect));
    const auto fill = [&](const LayerTarget& target) {
        if (step.layer == SurfaceLayer::Bitmap)
            fillBitmap(target, coverage, *surface.bitmaps.skin, bitmapPlacement(style, coverage.size()));
        else
            fillLayer(target, coverage, step, style, {surface.rect.x, surface.rect.y});
    };
    for (const Rect& part : layerParts(step, coverage, style))
        renderPixelLayer(surface.dc, step.rect, part, fill);
}

void paintStep(const Surface& surface, const PaintStep& step)
{
    const ShapeKind shape = surface.style.shape;
    switch (step.layer) {
    case SurfaceLayer::Fill: return fillShape(surface.dc, step.rect, shape, step.color);
    case SurfaceLayer::Border:
    case SurfaceLayer::Outline:
        return strokeShapeOutline(surface.dc, step.rect, shape, step.color, step.penWidth);
    case SurfaceLayer::Material: return drawMaterialOverlay(surface.dc, step.rect, surface.style);
    default: return paintPixels(surface, step);
    }
}

KeptPictures<KeptSurface>& keptLayers()
{
    constexpr std::size_t kMostPixels = 4'000'000; // 16 MB: some dialogs in several states, or a full screen
    static KeptPictures<KeptSurface> pictures(kMostPixels);
    return pictures;
}

Rect boundsOf(const PaintStep* first, const PaintStep* last) noexcept
{
    std::int32_t left = first->rect.x;
    std::int32_t top = first->rect.y;
    std::int32_t right = left + first->rect.width;
    std::int32_t bottom = top + first->rect.height;
    for (const PaintStep* step = first + 1; step != last; ++step) {
        left = std::min(left, step->rect.x);
        top = std::min(top, step->rect.y);
        right = std::max(right, step->rect.x + step->rect.width);
        bottom = std::max(bottom, step->rect.y + step->rect.height);
    }
    return {left, top, right - left, bottom - top};
}

// Layers between which there is no material: that one may move, and keeps itself.
void paintLayers(const Surface& surface, const PaintStep* first, const PaintStep* last)
{
    const auto paint = [&] {
        for (const PaintStep* step = first; step != last; ++step)
            paintStep(surface, *step);
        return true;
    };
    // Plain fills and strokes cost less than a copy.
    if (std::none_of(first, last, [](const PaintStep& step) { return costsPixels(step.layer); })) {
        paint();
        return;
    }
    const Rect area = visiblePart(surface.dc, boundsOf(first, last));
    paintKept(surface.dc, area, keptLayers(),
              SurfaceView{surface.style, surface.bitmaps, surface.rect, area,
                          static_cast<std::uint8_t>(first->layer)},
              paint);
}

void drawLayer(HDC dc, SurfaceLayer layer, const Rect& rect, const SurfaceStyle& style)
{
    paintStep({dc, rect, style, surfaceBitmaps(style)}, {layer, rect});
}

} // namespace

void paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    if (!isVisible(dc, rect))
        return; // before any bitmap is loaded for it
    const LoadedBitmaps bitmaps = surfaceBitmaps(style);
    const Surface surface{dc, rect, style, bitmaps};
    const BitmapCover cover = bitmaps.skin ? bitmaps.skin->cover() : BitmapCover::None;
    const PaintPlan plan = paintPlan(style, rect, clipBox(dc), cover);
    for (const PaintStep* step = plan.begin(); step != plan.end();) {
        const PaintStep* const material = std::find_if(step, plan.end(), isMaterial);
        if (step != material)
            paintLayers(surface, step, material);
        if (material != plan.end())
            paintStep(surface, *material);
        step = material == plan.end() ? material : material + 1;
    }
}

bool isOnSurface(const SurfaceStyle& style, ShapeKind hitShape, Size size, Point point)
{
    const LoadedBitmaps bitmaps = surfaceBitmaps(style);
    return hitSurface(style, hitShape, size, point, bitmaps.view());
}

Rect surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part, std::int32_t dpi)
{
    const bool mayHaveOutline = style.geometry && !isEmpty(surface);
    return roomOn(style, surface, part, dpi,
                  mayHaveOutline ? surfaceOutline(style, sizeOf(surface), surfaceBitmaps(style)) : nullptr);
}

void drawGradientShape(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::Gradient, rect, style);
}

void drawMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    if (carriesMaterial(style) && isVisible(dc, rect) && !tryDrawMaterialOverlayHlsl(dc, rect, style))
        drawSoftwareMaterialOverlay(dc, rect, style);
}

void drawSpatialSurfaceShading(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::SpatialShading, rect, style);
}

void drawInnerShadow(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::InnerShadow, rect, style);
}

void drawNoise(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::Noise, rect, style);
}

} // namespace vela
