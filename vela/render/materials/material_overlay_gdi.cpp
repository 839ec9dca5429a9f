#include "vela/render/materials/material_overlay_gdi.h"

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/bitmaps/surface_outline.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/materials/material_clock.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/render/shapes/coverage.h"

namespace vela {
namespace {

// Lets write(target) write the visible part of a surface's overlay and lays it, cut, over the surface.
template <typename Write>
void compositeCut(HDC dc, const Rect& rect, const SurfaceStyle& style, Write&& write)
{
    const Coverage coverage = surfaceCoverage(style, sizeOf(rect), surfaceBitmaps(style));
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        write(target);
        clearUncovered(target, coverage);
    });
}

} // namespace

MaterialConstants currentMaterialConstants(HDC dc, const SurfaceStyle& style, const Rect& rect)
{
    const PaintContext& context = paintContext(dc);
    return materialConstants(style, rect, lightPhase(style, context.time), context.profile);
}

void compositeMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style, const PixelView& overlay)
{
    if (!overlay.pixels || overlay.size != sizeOf(rect))
        return;
    compositeCut(dc, rect, style, [&overlay](const LayerTarget& target) {
        copyPixels(LayerTarget{overlay, {}}.part(target.visible()).view, target.view);
    });
}

void drawSoftwareMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    const MaterialConstants constants = currentMaterialConstants(dc, style, rect);
    compositeCut(dc, rect, style,
                 [&constants](const LayerTarget& target) { renderMaterialOverlay(constants, target); });
}

void drawSeamlessMaterialTextureOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style,
                                        PerformanceProfile profile)
{
    if (!carriesMaterial(style) || !isVisible(dc, rect))
        return;
    PaintContext context = paintContext(dc);
    context.profile = profile;
    const PaintContextBinding binding(dc, context);
    SurfaceStyle seamless = style;
    seamless.uvMapping = MappingSpace::Global;
    drawSoftwareMaterialOverlay(dc, rect, seamless);
}

} // namespace vela
