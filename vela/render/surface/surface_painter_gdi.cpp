#include "vela/render/surface/surface_painter.h"

#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/bitmaps/surface_outline.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/picture_cache_gdi.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/layers/layer_bounds.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/materials/material_gpu_d3d11.h"
#include "vela/render/materials/material_overlay_gdi.h"
#include "vela/render/surface/surface_key.h"
#include "vela/render/surface/surface_shape.h"

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
    for (const Rect& part : layerBounds(step, coverage, style))
        renderPixelLayer(surface.dc, step.rect, part, fill);
}

void paintStep(const Surface& surface, const PaintStep& step)
{
    const ShapeKind shape = surface.style.shape;
    switch (step.layer) {
    case SurfaceLayer::Fill: return render::fillShape(surface.dc, step.rect, shape, step.color);
    case SurfaceLayer::Border:
    case SurfaceLayer::Outline:
        return render::strokeShapeOutline(surface.dc, step.rect, shape, step.color, step.penWidth);
    case SurfaceLayer::Material: return drawMaterialOverlay(surface.dc, step.rect, surface.style);
    default: return paintPixels(surface, step);
    }
}

PictureCache<SurfaceKey>& layerPictures()
{
    constexpr std::size_t kMostPixels = 4'000'000; // 16 MB: some dialogs in several states, or a full screen
    static PictureCache<SurfaceKey> pictures(kMostPixels);
    return pictures;
}

Rect boundsOf(const PaintStep* first, const PaintStep* last) noexcept
{
    Rect bounds = first->rect;
    for (const PaintStep* step = first + 1; step != last; ++step)
        bounds = united(bounds, step->rect);
    return bounds;
}

// Layers between which there is no material: that one may move, and has a cache of its own.
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
    paintCached(surface.dc, area, layerPictures(),
                SurfaceKeyView{surface.style, surface.bitmaps, surface.rect, area,
                               static_cast<std::uint8_t>(first->layer)},
                paint);
}

void drawLayer(HDC dc, SurfaceLayer layer, const Rect& rect, const SurfaceStyle& style)
{
    paintStep({dc, rect, style, surfaceBitmaps(style)}, {layer, rect});
}

} // namespace

void render::paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
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

bool render::isOnSurface(const SurfaceStyle& style, ShapeKind hitShape, Size size, Point point)
{
    const LoadedBitmaps bitmaps = surfaceBitmaps(style);
    return hitSurface(style, hitShape, size, point, bitmaps.view());
}

Rect render::surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part, std::int32_t dpi)
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
