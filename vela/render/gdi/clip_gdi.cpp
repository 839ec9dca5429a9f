#include "vela/render/gdi/clip_gdi.h"

#include "vela/render/gdi/owned_gdi.h"

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

Rect visiblePart(HDC dc, const Rect& rect) noexcept
{
    if (isEmpty(rect))
        return {};
    const std::optional<Rect> clip = clipBox(dc);
    return clip ? intersection(rect, *clip) : rect;
}

int narrowClip(HDC dc, const std::vector<Rect>& rects)
{
    const int saved = ::SaveDC(dc);
    const OwnedRegion all(::CreateRectRgn(0, 0, 0, 0));
    const OwnedRegion one(::CreateRectRgn(0, 0, 0, 0));
    // A region is in device pixels; the rectangles count from the context's origin.
    POINT origin{};
    ::GetViewportOrgEx(dc, &origin);
    for (const Rect& rect : rects) {
        const int left = rect.x + origin.x;
        const int top = rect.y + origin.y;
        ::SetRectRgn(one.get(), left, top, left + rect.width, top + rect.height);
        ::CombineRgn(all.get(), all.get(), one.get(), RGN_OR);
    }
    ::ExtSelectClipRgn(dc, all.get(), RGN_AND);
    return saved;
}

void restoreClip(HDC dc, int saved) noexcept { ::RestoreDC(dc, saved); }

} // namespace vela
