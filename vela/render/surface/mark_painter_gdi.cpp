#include "vela/render/surface/mark_painter.h"

#include "vela/mul_div.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/shapes/antialias.h"
#include "vela/render/surface/focus_ring.h"

namespace vela::render {

void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color)
{
    renderPixelLayer(dc, box, [&](const LayerTarget& target) {
        drawIcon(target, icon, {0, 0, box.width, box.height}, dpi, color);
    });
}

void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color)
{
    const std::int32_t reach = focusRingReach(dpi);
    const Rect bounds = focusRingBounds(rect, dpi);
    // Everywhere as far from the shape, but square corners stay square.
    const std::int32_t growth = shape == ShapeKind::Rect ? reach : 0;
    const Rect from = grownBy(movedBy(rect, {-bounds.x, -bounds.y}), growth);
    const auto width = static_cast<float>(mulDiv(kFocusRingWidth, dpi, kDesignDpi));
    renderPixelLayer(dc, bounds, [&](const LayerTarget& target) {
        strokeAntialiased(target, shape, from, width, color, static_cast<float>(growth - reach));
    });
}

} // namespace vela::render
