#include "vela/controls/window_edge.h"

#include "vela/render/surface_painter.h"
#include "vela/theme/style_sheet.h"

namespace vela {

bool WindowEdge::applyStyle(const StyleSheet& styles)
{
    color_ = styles.find<PopupStyle>(styleKey()).surface.border;
    invalidate(InvalidationReason::State);
    return true;
}

void WindowEdge::paint(HDC dc, Point origin)
{
    strokeShapeOutline(dc, movedBy(bounds(), origin), ShapeKind::Rect, color_, scaled(1));
}

} // namespace vela
