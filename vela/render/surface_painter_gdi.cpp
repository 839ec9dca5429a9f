#include "vela/render/surface_painter.h"

#include "vela/render/clip_gdi.h"
#include "vela/render/paint_plan.h"
#include "vela/render/pixel_layer_gdi.h"

namespace vela {
namespace {

void paintStep(HDC dc, const PaintStep& step, const Rect& surface, const SurfaceStyle& style)
{
    switch (step.layer) {
    case SurfaceLayer::Fill: return fillShape(dc, step.rect, style.shape, step.color);
    case SurfaceLayer::Border:
    case SurfaceLayer::Outline:
        return strokeShapeOutline(dc, step.rect, style.shape, step.color, step.penWidth);
    case SurfaceLayer::Bitmap: return;
    case SurfaceLayer::Material: return drawMaterialOverlay(dc, step.rect, style);
    default: break;
    }
    const Coverage coverage(style.shape, sizeOf(step.rect));
    renderPixelLayer(dc, step.rect, [&](const LayerTarget& target) {
        fillLayer(target, coverage, step, style, {surface.x, surface.y});
    });
}

void drawLayer(HDC dc, SurfaceLayer layer, const Rect& rect, const SurfaceStyle& style)
{
    paintStep(dc, {layer, rect}, rect, style);
}

} // namespace

void paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    for (const PaintStep& step : paintPlan(style, rect, clipBox(dc)))
        paintStep(dc, step, rect, style);
}

void drawGradientShape(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawLayer(dc, SurfaceLayer::Gradient, rect, style);
}

// The place of the materials, on the graphics card and in software. None exist yet.
void drawMaterialOverlay(HDC, const Rect&, const SurfaceStyle&) {}

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
