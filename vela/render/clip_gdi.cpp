#include "vela/render/clip_gdi.h"

namespace vela {

Rect visiblePart(HDC dc, const Rect& rect) noexcept
{
    if (isEmpty(rect))
        return {};
    RECT clip;
    const int kind = ::GetClipBox(dc, &clip);
    if (kind == ERROR)
        return rect;
    if (kind == NULLREGION)
        return {};
    return intersection(rect, {clip.left, clip.top, clip.right - clip.left, clip.bottom - clip.top});
}

} // namespace vela
