#include "vela/render/gdi/dib_gdi.h"

#include <algorithm>

namespace vela {
namespace {

// Widths in steps, so that a window being resized does not need a new bitmap for every pixel.
constexpr std::int32_t kSizeStep = 64;

constexpr std::int64_t areaOf(Size size) noexcept { return std::int64_t{size.width} * size.height; }

constexpr std::int32_t steppedUp(std::int32_t length) noexcept
{
    return (length + kSizeStep - 1) / kSizeStep * kSizeStep;
}

} // namespace

DibSurface::DibSurface(Size size) : size_(size), dc_(::CreateCompatibleDC(nullptr))
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_.reset(::CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap_)
        return;
    selected_.emplace(dc_.get(), bitmap_.get());
    pixels_ = static_cast<Pixel*>(bits);
}

// Large enough for this use and, within the bound, for those before it.
Size ScratchBitmap::grownTo(Size wanted) const noexcept
{
    const Size stepped{steppedUp(wanted.width), steppedUp(wanted.height)};
    if (!bitmap_)
        return stepped;
    const Size both{std::max(stepped.width, bitmap_->size().width),
                    std::max(stepped.height, bitmap_->size().height)};
    return areaOf(both) <= mostReusedPixels_ ? both : stepped;
}

DibSurface* ScratchBitmap::ensure(Size size)
{
    if (!bitmap_ || bitmap_->size().width < size.width || bitmap_->size().height < size.height)
        bitmap_.emplace(grownTo(size));
    if (!*bitmap_)
        bitmap_.reset();
    return bitmap_ ? &*bitmap_ : nullptr;
}

void ScratchBitmap::release() noexcept
{
    if (bitmap_ && areaOf(bitmap_->size()) > mostReusedPixels_)
        bitmap_.reset();
}

} // namespace vela
