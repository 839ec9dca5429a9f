// Pixels in memory that GDI can draw on and programs can read: a top-down bitmap of 32 bits a pixel, selected
// into a memory context of its own.
#pragma once

#include "vela/render/gdi/owned_gdi.h"
#include "vela/render/pixels/pixel_buffer.h"

#include <optional>

namespace vela {

class DibSurface {
public:
    // All pixels start as zero. Without memory for them the surface is empty.
    explicit DibSurface(Size size);

    explicit operator bool() const noexcept { return pixels_ != nullptr; }
    Size size() const noexcept { return size_; }
    HDC dc() const noexcept { return dc_.get(); }

    // GDI queues its calls: the pixels are what it has drawn so far, and may be written, until its next call.
    PixelView pixels() const noexcept
    {
        ::GdiFlush();
        return {pixels_, size_, size_.width};
    }

private:
    Size size_;
    OwnedMemoryDc dc_;
    OwnedBitmap bitmap_;
    std::optional<SelectedObject> selected_; // last: let go first
    Pixel* pixels_ = nullptr;
};

// A bitmap for passing use, used again from one time to the next unless it is larger than a bound.
class ScratchBitmap {
public:
    explicit ScratchBitmap(std::int64_t mostReusedPixels) noexcept : mostReusedPixels_(mostReusedPixels) {}

    // At least of that size, with whatever its last user left in it; null without memory.
    DibSurface* ensure(Size size);
    // What `ensure` has given last.
    const DibSurface& surface() const noexcept { return *bitmap_; }
    // Lets go of one that is too large to be used again.
    void release() noexcept;

private:
    Size grownTo(Size wanted) const noexcept;

    std::int64_t mostReusedPixels_;
    std::optional<DibSurface> bitmap_;
};

} // namespace vela
