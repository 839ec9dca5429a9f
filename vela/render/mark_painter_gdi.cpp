#include "vela/render/mark_painter.h"

#include "vela/render/dib_gdi.h"
#include "vela/render/pixel_layer_gdi.h"
#include "vela/render/surface_painter.h"

#include <algorithm>
#include <cmath>

namespace vela {

namespace {

constexpr float kDesignDpi = 96.0F;
constexpr float kFocusRingWidth = 2.0F; // pixels at 96 DPI: the least that is seen on every monitor

// GDI leaves the alpha of what it draws undefined.
void makeOpaque(const PixelView& pixels)
{
    for (std::int32_t y = 0; y < pixels.size.height; ++y)
        std::for_each(pixels.row(y), pixels.row(y) + pixels.size.width,
                      [](Pixel& pixel) { pixel |= 0xFF000000; });
}

} // namespace

void paintGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color)
{
    renderPixelLayer(dc, box, [&](const LayerTarget& target) {
        drawGlyph(target, glyph, {0, 0, box.width, box.height}, dpi, color);
    });
}

void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color)
{
    const float width = std::round(kFocusRingWidth * static_cast<float>(dpi) / kDesignDpi);
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        strokeSmoothShape(target, shape, {0, 0, rect.width, rect.height}, width, color);
    });
}

void paintBadge(HDC dc, const Rect& rect, ShapeKind shape, Color color)
{
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        fillSmoothShape(target, shape, {0, 0, rect.width, rect.height}, color);
    });
}

// The whole fill is painted on a copy of what lies under it; of that picture the part up to the end is laid
// back with a smooth edge.
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end)
{
    const float reach = std::clamp(end, 0.0F, static_cast<float>(track.width));
    const Rect filled{track.x, track.y, static_cast<std::int32_t>(std::ceil(reach)), track.height};
    const Rect visible = visiblePart(dc, filled);
    const DibSurface copy(sizeOf(visible));
    if (isEmpty(visible) || !copy)
        return;
    ::BitBlt(copy.dc(), 0, 0, visible.width, visible.height, dc, visible.x, visible.y, SRCCOPY);
    ::SetViewportOrgEx(copy.dc(), -visible.x, -visible.y, nullptr);
    paintSurface(copy.dc(), track, fill);
    const PixelView pixels = copy.pixels();
    makeOpaque(pixels);
    cutToProgress({pixels, {visible.x - track.x, visible.y - track.y}}, fill.shape,
                  {0, 0, track.width, track.height}, reach);
    compositePixelBuffer(dc, visible, pixels);
}

} // namespace vela
