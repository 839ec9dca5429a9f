// Cached pictures of device contexts. UI thread only.
#pragma once

#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/gdi/picture_cache.h"
#include "vela/render/gdi/pixel_layer_gdi.h"

namespace vela {

// Brings the area, which the clip shows, to what paint() makes of it: from the cached picture, or by paint(),
// which answers whether it painted. False when it did not.
template <typename What, typename View, typename Paint>
bool paintCached(HDC dc, const Rect& area, PictureCache<What>& pictures, const View& what, Paint&& paint)
{
    // A clip that is no rectangle would leave parts of the area as they are.
    const bool caches =
        paintContext(dc).cachesPictures && pictures.hasRoomFor(sizeOf(area)) && isClipRectangle(dc);
    const PixelView beneath = caches ? readPixels(dc, area) : PixelView{};
    if (!beneath.pixels)
        return paint();
    const Backdrop backdrop = backdropOf(beneath);
    if (const PixelView cached = pictures.find(what, backdrop); cached.pixels) {
        writePixels(dc, area, cached);
        return true;
    }
    if (!paint())
        return false;
    if (pictures.noteAndIsRepeated(backdrop))
        pictures.store(what, backdrop, readPixels(dc, area));
    return true;
}

} // namespace vela
