#include "vela/render/material_overlay_gdi.h"

#include "vela/render/coverage.h"
#include "vela/render/material_clock.h"
#include "vela/render/performance_win32.h"
#include "vela/render/pixel_layer_gdi.h"
#include "vela/render/surface_bitmaps.h"
#include "vela/render/surface_outline.h"

#include <algorithm>

namespace vela {
namespace {

// 40 MB: a window as large as a 4K screen, and some.
constexpr std::size_t kMostKeptPixels = 10'000'000;

} // namespace

MaterialOverlayCache& materialOverlays()
{
    static MaterialOverlayCache overlays(kMostKeptPixels);
    return overlays;
}

MaterialConstants currentMaterialConstants(const SurfaceStyle& style, const Rect& rect)
{
    return materialConstants(style, rect, lightPhase(style, materialTime()), performanceProfile());
}

void compositeMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style, const PixelView& overlay)
{
    if (!overlay.pixels || overlay.size != sizeOf(rect))
        return;
    const RunMask* const outline = surfaceOutline(style, overlay.size, surfaceBitmaps(style));
    const Coverage coverage = outline ? Coverage(*outline) : Coverage(style.shape, overlay.size);
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        paintCovered(target, coverage, [&overlay](Pixel* first, Span run, std::int32_t y) {
            std::copy_n(overlay.row(y) + run.begin, run.length(), first);
        });
    });
}

} // namespace vela
