#include "vela/render/pixel_layer_gdi.h"

#include "vela/render/dib_gdi.h"
#include "vela/render/surface_painter.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace vela {
namespace {

// Bitmaps up to a full screen are kept; larger ones go as soon as their layer is composited.
constexpr std::int64_t kMostKeptPixels = 2560 * 1600;

// Widths in steps, so that a window being resized does not need a new bitmap for every pixel.
constexpr std::int32_t kSizeStep = 64;

constexpr std::int64_t areaOf(Size size) noexcept { return std::int64_t{size.width} * size.height; }

std::optional<DibSurface>& scratch()
{
    static std::optional<DibSurface> bitmap;
    return bitmap;
}

constexpr std::int32_t steppedUp(std::int32_t length) noexcept
{
    return (length + kSizeStep - 1) / kSizeStep * kSizeStep;
}

// Large enough for this layer and, within the bound, for those before it.
Size scratchSizeFor(Size wanted)
{
    const Size stepped{steppedUp(wanted.width), steppedUp(wanted.height)};
    if (!scratch())
        return stepped;
    const Size both{std::max(stepped.width, scratch()->size().width),
                    std::max(stepped.height, scratch()->size().height)};
    return areaOf(both) <= kMostKeptPixels ? both : stepped;
}

} // namespace

PixelView scratchPixels(Size size)
{
    if (isEmpty(size) || areaOf(size) > std::numeric_limits<std::int32_t>::max() / 8)
        return {};
    std::optional<DibSurface>& bitmap = scratch();
    if (!bitmap || bitmap->size().width < size.width || bitmap->size().height < size.height)
        bitmap.emplace(scratchSizeFor(size));
    if (!*bitmap) {
        bitmap.reset();
        return {};
    }
    const PixelView all = bitmap->pixels();
    return {all.pixels, size, all.stride};
}

void compositeScratch(HDC dc, const Rect& rect)
{
    // msimg32's AlphaBlend by the name under which gdi32 exports it.
    constexpr BLENDFUNCTION kSourceOver{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, rect.x, rect.y, rect.width, rect.height, scratch()->dc(), 0, 0, rect.width,
                    rect.height, kSourceOver);
    if (areaOf(scratch()->size()) > kMostKeptPixels)
        scratch().reset();
}

PixelView readPixels(HDC dc, const Rect& rect)
{
    PixelView pixels = scratchPixels(sizeOf(rect));
    if (!pixels.pixels ||
        !::BitBlt(scratch()->dc(), 0, 0, rect.width, rect.height, dc, rect.x, rect.y, SRCCOPY))
        return {};
    ::GdiFlush();
    return pixels;
}

void writeScratch(HDC dc, const Rect& rect)
{
    ::BitBlt(dc, rect.x, rect.y, rect.width, rect.height, scratch()->dc(), 0, 0, SRCCOPY);
}

void writePixels(HDC dc, const Rect& rect, const PixelView& pixels)
{
    const PixelView copy = scratchPixels(sizeOf(rect));
    if (!copy.pixels)
        return;
    copyPixels(pixels, copy);
    writeScratch(dc, rect);
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
