#include "vela/render/materials/material_overlay_gdi.h"

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/bitmaps/surface_outline.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/materials/material_clock.h"
#include "vela/render/materials/material_light.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/render/shapes/coverage.h"

#include <algorithm>

namespace vela {
namespace {

// 40 MB: a window as large as a 4K screen, and some.
constexpr std::size_t kMostCachedPixels = 10'000'000;

// Lets write(target, coverage) write the visible part of a surface's overlay and lays it over the surface.
template <typename Write>
void compositeCut(HDC dc, const Rect& rect, const SurfaceStyle& style, Write&& write)
{
    const RunMask* const outline = surfaceOutline(style, sizeOf(rect), surfaceBitmaps(style));
    const Coverage coverage = outline ? Coverage(*outline) : Coverage(style.shape, sizeOf(rect));
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) { write(target, coverage); });
}

PixelView unlitOverlay(const MaterialConstants& constants)
{
    static MaterialOverlayCache overlays(kMostCachedPixels);
    const MaterialConstants unlit = withoutLight(constants);
    return overlays.ensure(unlit, [&unlit](const PixelView& pixels) {
        renderMaterialOverlay(unlit, {pixels, {}});
        return true;
    });
}

void drawInSoftware(HDC dc, const Rect& rect, const SurfaceStyle& style, const MaterialConstants& constants)
{
    const PixelView cached = materialOverlays().ensure(constants, [&constants](const PixelView& pixels) {
        if (hasMovingLight(constants))
            addLight(constants, unlitOverlay(constants), pixels);
        else
            renderMaterialOverlay(constants, {pixels, {}});
        return true;
    });
    if (cached.pixels)
        return compositeMaterialOverlay(dc, rect, style, cached);
    // Too large to be cached: only what can be seen is rendered, each time.
    compositeCut(dc, rect, style, [&constants](const LayerTarget& target, const Coverage& coverage) {
        renderMaterialOverlay(constants, target);
        paintCovered(target, coverage, [](Pixel*, Span, std::int32_t) {});
    });
}

} // namespace

MaterialOverlayCache& materialOverlays()
{
    static MaterialOverlayCache overlays(kMostCachedPixels);
    return overlays;
}

MaterialConstants currentMaterialConstants(HDC dc, const SurfaceStyle& style, const Rect& rect)
{
    const PaintContext& context = paintContext(dc);
    return materialConstants(style, rect, lightPhase(style, context.time), context.profile);
}

void compositeMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style, const PixelView& overlay)
{
    if (!overlay.pixels || overlay.size != sizeOf(rect))
        return;
    compositeCut(dc, rect, style, [&overlay](const LayerTarget& target, const Coverage& coverage) {
        paintCovered(target, coverage, [&overlay](Pixel* first, Span run, std::int32_t y) {
            std::copy_n(overlay.row(y) + run.begin, run.length(), first);
        });
    });
}

void drawSoftwareMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    drawInSoftware(dc, rect, style, currentMaterialConstants(dc, style, rect));
}

void drawSeamlessMaterialTextureOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style,
                                        PerformanceProfile profile)
{
    if (!carriesMaterial(style) || !isVisible(dc, rect))
        return;
    SurfaceStyle seamless = style;
    seamless.uvMapping = MappingSpace::Global;
    const float phase = lightPhase(style, paintContext(dc).time);
    drawInSoftware(dc, rect, seamless, materialConstants(seamless, rect, phase, profile));
}

} // namespace vela
