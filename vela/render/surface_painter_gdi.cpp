#include "vela/render/surface_painter.h"

#include "vela/render/clip_gdi.h"
#include "vela/render/layer_parts.h"
#include "vela/render/material_gpu_d3d11.h"
#include "vela/render/material_overlay_gdi.h"
#include "vela/render/paint_plan.h"
#include "vela/render/pixel_layer_gdi.h"
#include "vela/render/surface_bitmaps.h"
#include "vela/render/surface_outline.h"

namespace vela {
namespace {

// One surface while it is painted.
struct Surface {
    HDC dc;
    Rect rect;
    const SurfaceStyle& style;
    const LoadedBitmaps& bitmaps;
};

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
    for (const PaintStep& step : paintPlan(style, rect, clipBox(dc), cover))
        paintStep(surface, step);
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
