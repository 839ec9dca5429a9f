#include "vela/controls/tree/panel.h"

#include "vela/render/paint/paint.h"

namespace vela {

namespace {

// Damage is joined into strips no higher than this, so that a clip stays a handful of rectangles.
constexpr std::int32_t kDamageHeightLimit = 4096;

} // namespace

void Panel::paint(HDC dc, Point origin)
{
    const Rect box = movedBy(localBounds(), {origin.x + bounds().x, origin.y + bounds().y});
    std::vector<Rect> painted = damageRects(kDamageHeightLimit);
    for (Rect& rect : painted)
        rect = movedBy(rect, {box.x, box.y});
    if (painted.empty())
        painted.push_back(box);

    const PaintClip clip(dc, painted);
    if (surface_)
        paintSurface(dc, box, *surface_);
    const Point content = contentOrigin();
    for (Control* child : visibleChildren())
        child->paint(dc, {box.x + content.x, box.y + content.y});
}

} // namespace vela
