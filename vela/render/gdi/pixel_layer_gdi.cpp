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

void compositeScratch(HDC dc, const Rect& rect)
{
    // msimg32's AlphaBlend by the name under which gdi32 exports it.
    constexpr BLENDFUNCTION kSourceOver{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, rect.x, rect.y, rect.width, rect.height, scratch().surface().dc(), 0, 0, rect.width,
                    rect.height, kSourceOver);
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
