// Pixel layers on their way to a device context: a scratch bitmap that every layer uses again.
#pragma once

#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/pixels/pixel_buffer.h"

namespace vela {

// Pixels for one layer, valid until the next call; empty when Windows cannot give them. They hold whatever
// the layer before left there.
PixelView scratchPixels(Size size);

// Blends the scratch pixels of that size, from their top left corner, over the rectangle. The solid part of
// it, where they are opaque, is copied.
void compositeScratch(HDC dc, const Rect& rect, const Rect& solid = {});

// The one place where software pixels reach the screen: premultiplied pixels of the rectangle's size, source
// over what is there.
void compositePixelBuffer(HDC dc, const Rect& rect, const PixelView& pixels);

// Lets `fill` write the visible pixels of a part of a layer, as a LayerTarget, and composites them. The layer
// covers the rectangle; the part is in the layer's own coordinates. What the clip hides is not generated.
template <typename Fill>
void renderPixelLayer(HDC dc, const Rect& rect, const Rect& part, Fill&& fill)
{
    const Rect visible = visiblePart(dc, {rect.x + part.x, rect.y + part.y, part.width, part.height});
    const PixelView pixels = scratchPixels(sizeOf(visible));
    if (!pixels.pixels)
        return;
    fill(LayerTarget{pixels, {visible.x - rect.x, visible.y - rect.y}});
    compositeScratch(dc, visible);
}

// The same for the whole layer.
template <typename Fill>
void renderPixelLayer(HDC dc, const Rect& rect, Fill&& fill)
{
    renderPixelLayer(dc, rect, {0, 0, rect.width, rect.height}, fill);
}

} // namespace vela
