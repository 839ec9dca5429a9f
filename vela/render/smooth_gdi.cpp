#include "vela/render/dib_gdi.h"
#include "vela/render/pixel_layer_gdi.h"
#include "vela/render/smooth_drawing.h"
#include "vela/render/surface_painter.h"

#include <algorithm>
#include <cmath>

namespace vela {
namespace {

// Smooth edges and lines end within the rectangle; the targets' coordinates begin at its corner.
template <typename Draw>
void drawSmooth(HDC dc, const Rect& rect, Draw&& draw)
{
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        draw(target, Rect{0, 0, rect.width, rect.height});
    });
}

void makeOpaque(const PixelView& pixels)
{
    for (std::int32_t y = 0; y < pixels.size.height; ++y)
        std::for_each(pixels.row(y), pixels.row(y) + pixels.size.width,
                      [](Pixel& pixel) { pixel |= 0xFF000000; });
}

} // namespace

void drawGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color, std::uint8_t alpha)
{
    drawSmooth(dc, box, [&](const LayerTarget& target, const Rect& local) {
        drawGlyph(target, glyph, local, dpi, color, alpha);
    });
}

void fillSmoothShape(HDC dc, ShapeKind kind, const Rect& rect, Color color, std::uint8_t alpha)
{
    drawSmooth(dc, rect, [&](const LayerTarget& target, const Rect& local) {
        fillSmoothShape(target, kind, local, color, alpha);
    });
}

void strokeSmoothShape(HDC dc, ShapeKind kind, const Rect& rect, float width, Color color, std::uint8_t alpha)
{
    drawSmooth(dc, rect, [&](const LayerTarget& target, const Rect& local) {
        strokeSmoothShape(target, kind, local, width, color, alpha);
    });
}

// The whole surface is painted over what lies there, beside the screen, and what lies beyond the end is taken
// away again.
void paintProgressSurface(HDC dc, const Rect& rect, const SurfaceStyle& style, float end)
{
    const auto reach =
        static_cast<std::int32_t>(std::ceil(std::clamp(end, 0.0F, static_cast<float>(rect.width))));
    const Rect visible = visiblePart(dc, {rect.x, rect.y, reach, rect.height});
    if (isEmpty(visible))
        return;
    const DibSurface painted(sizeOf(visible));
    if (!painted)
        return;
    ::BitBlt(painted.dc(), 0, 0, visible.width, visible.height, dc, visible.x, visible.y, SRCCOPY);
    ::SetViewportOrgEx(painted.dc(), -visible.x, -visible.y, nullptr);
    paintSurface(painted.dc(), rect, style);
    const PixelView pixels = painted.pixels();
    makeOpaque(pixels);
    cutToProgress({pixels, {visible.x - rect.x, visible.y - rect.y}}, style.shape,
                  {0, 0, rect.width, rect.height}, end);
    compositePixelBuffer(dc, visible, pixels);
}

} // namespace vela
