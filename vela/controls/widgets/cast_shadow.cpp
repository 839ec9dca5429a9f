#include "vela/controls/widgets/cast_shadow.h"

#include "vela/controls/tree/panel.h"
#include "vela/render/paint/paint.h"

namespace vela {

CastShadow::CastShadow(const SurfaceStyle& surface, Color color, Point offset)
{
    style_.shape = surface.shape;
    style_.drawFill = false;
    style_.drawBorder = false;
    style_.showShadow = true;
    style_.shadow = color;
    style_.shadowOpacity = surface.shadowOpacity;
    style_.shadowOffsetX = offset.x;
    style_.shadowOffsetY = offset.y;
}

void CastShadow::paint(HDC dc, const Control& control, const Rect& box) const
{
    if (!style_.showShadow || !control.parent())
        return;
    const Rect& own = control.bounds();
    const Rect moved = movedBy(own, {style_.shadowOffsetX, style_.shadowOffsetY});
    const Rect seen = intersection(moved, control.parent()->localBounds());
    if (!isEmpty(seen) && united(seen, own) != own)
        paintSurface(dc, box, style_);
}

} // namespace vela
