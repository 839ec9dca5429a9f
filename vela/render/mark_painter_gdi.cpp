#include "vela/render/mark_painter.h"

#include "vela/render/owned_gdi.h"
#include "vela/render/pixel_layer_gdi.h"
#include "vela/render/surface_painter.h"

#include <algorithm>
#include <cmath>

namespace vela {

namespace {

constexpr float kDesignDpi = 96.0F;
constexpr float kFocusRingWidth = 2.0F; // pixels at 96 DPI: the least that is seen on every monitor

// A bitmap of our own that shows what the device context shows in that rectangle, in the same coordinates.
class PaintedCopy {
public:
    PaintedCopy(HDC dc, const Rect& rect) : size_(sizeOf(rect)), memory_(::CreateCompatibleDC(dc))
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = size_.width;
        info.bmiHeader.biHeight = -size_.height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_ = OwnedBitmap(::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels_ = static_cast<Pixel*>(bits);
        if (!bitmap_ || !memory_)
            return;
        previous_ = ::SelectObject(memory_.get(), bitmap_.get());
        ::BitBlt(memory_.get(), 0, 0, size_.width, size_.height, dc, rect.x, rect.y, SRCCOPY);
        ::SetViewportOrgEx(memory_.get(), -rect.x, -rect.y, nullptr);
    }
    ~PaintedCopy()
    {
        if (previous_)
            ::SelectObject(memory_.get(), previous_);
    }
    PaintedCopy(const PaintedCopy&) = delete;
    PaintedCopy& operator=(const PaintedCopy&) = delete;

    explicit operator bool() const noexcept { return previous_ != nullptr; }
    HDC dc() const noexcept { return memory_.get(); }

    // The pixels, all of them opaque: GDI leaves their alpha undefined.
    PixelView opaquePixels() noexcept
    {
        ::GdiFlush();
        const std::ptrdiff_t count = std::ptrdiff_t{size_.width} * size_.height;
        std::for_each(pixels_, pixels_ + count, [](Pixel& pixel) { pixel |= 0xFF000000; });
        return {pixels_, size_, size_.width};
    }

private:
    Size size_;
    OwnedMemoryDc memory_;
    OwnedBitmap bitmap_;
    Pixel* pixels_ = nullptr;
    HGDIOBJ previous_ = nullptr;
};

} // namespace

void paintGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color)
{
    renderPixelLayer(dc, box, [&](const LayerTarget& target) {
        drawGlyph(target, glyph, {0, 0, box.width, box.height}, dpi, color);
    });
}

void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color)
{
    const float width = std::round(kFocusRingWidth * static_cast<float>(dpi) / kDesignDpi);
    renderPixelLayer(dc, rect, [&](const LayerTarget& target) {
        strokeSmoothShape(target, shape, {0, 0, rect.width, rect.height}, width, color);
    });
}

// The whole fill is painted on a copy of what lies under it; of that picture the part up to the end is laid
// back with a smooth edge.
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end)
{
    if (isEmpty(track) || end <= 0.0F)
        return;
    PaintedCopy copy(dc, track);
    if (!copy)
        return;
    paintSurface(copy.dc(), track, fill);
    const PixelView pixels = copy.opaquePixels();
    cutToProgress({pixels, {0, 0}}, fill.shape, {0, 0, track.width, track.height}, end);
    compositePixelBuffer(dc, track, pixels);
}

} // namespace vela
