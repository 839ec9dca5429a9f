#include "vela/render/gdi/owned_gdi.h"
#include "vela/render/gdi/paint_clip.h"

namespace vela {

PaintClip::PaintClip(HDC dc, const std::vector<Rect>& rects) : dc_(dc), saved_(::SaveDC(dc))
{
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
}

PaintClip::~PaintClip() { ::RestoreDC(dc_, saved_); }

} // namespace vela
