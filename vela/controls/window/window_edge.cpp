#include "vela/controls/window/window_edge.h"

#include "vela/render/paint/paint.h"
#include "vela/theme/records/style_sheet.h"

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
