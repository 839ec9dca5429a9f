#include "vela/render/gdi/clip_gdi.h"

namespace vela {

std::optional<Rect> clipBox(HDC dc) noexcept
{
    RECT box;
    const int kind = ::GetClipBox(dc, &box);
    if (kind == ERROR)
        return std::nullopt;
    if (kind == NULLREGION)
        return Rect{};
    return Rect{box.left, box.top, box.right - box.left, box.bottom - box.top};
}

bool isClipRectangle(HDC dc) noexcept
{
    RECT box;
    return ::GetClipBox(dc, &box) == SIMPLEREGION;
}

Rect visiblePart(HDC dc, const Rect& rect) noexcept
{
    if (isEmpty(rect))
        return {};
    const std::optional<Rect> clip = clipBox(dc);
    return clip ? intersection(rect, *clip) : rect;
}

} // namespace vela
