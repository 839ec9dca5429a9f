#include "vela/render/gdi/pixel_layer_gdi.h"

#include "vela/render/gdi/dib_gdi.h"

#include <algorithm>
#include <limits>

namespace vela {
namespace {

ScratchBitmap& scratch()
{
    constexpr std::int64_t kMostReusedPixels = 2560 * 1600; // a full screen
    static ScratchBitmap bitmap(kMostReusedPixels);
    return bitmap;
}

} // namespace

PixelView scratchPixels(Size size)
{
    constexpr std::int64_t kMostPixels = std::numeric_limits<std::int32_t>::max() / 8;
    if (isEmpty(size) || std::int64_t{size.width} * size.height > kMostPixels)
        return {};
    const DibSurface* const bitmap = scratch().ensure(size);
    if (!bitmap)
        return {};
    const PixelView all = bitmap->pixels();
    return {all.pixels, size, all.stride};
}

void compositeScratch(HDC dc, const Rect& rect, const Rect& solid)
{
    const HDC pixels = scratch().surface().dc();
    const auto blend = [&](const Rect& part) {
        // msimg32's AlphaBlend by the name under which gdi32 exports it.
        constexpr BLENDFUNCTION kSourceOver{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        ::GdiAlphaBlend(dc, part.x, part.y, part.width, part.height, pixels, part.x - rect.x, part.y - rect.y,
                        part.width, part.height, kSourceOver);
    };
    if (const Rect copied = intersection(rect, solid); isEmpty(copied))
        blend(rect);
    else {
        visitFrame(rect, copied, blend);
        ::BitBlt(dc, copied.x, copied.y, copied.width, copied.height, pixels, copied.x - rect.x,
                 copied.y - rect.y, SRCCOPY);
    }
    scratch().release();
}

void compositePixelBuffer(HDC dc, const Rect& rect, const PixelView& pixels)
{
    if (!pixels.pixels || sizeOf(rect) != pixels.size)
        return;
    renderPixelLayer(dc, rect, [&pixels](const LayerTarget& target) {
        for (std::int32_t y = 0; y < target.view.size.height; ++y)
            std::copy_n(pixels.row(target.origin.y + y) + target.origin.x, target.view.size.width,
                        target.view.row(y));
    });
}

} // namespace vela
