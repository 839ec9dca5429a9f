// A device context with pixels that a test can read.
#pragma once

#include "vela/render/owned_gdi.h"
#include "vela/render/pixel_buffer.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vela::testing {

class Canvas {
public:
    explicit Canvas(Size size, Color ground = 0) : size_(size), dc_(::CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        bitmap_.reset(::CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits_, nullptr, 0));
        previous_ = ::SelectObject(dc_.get(), bitmap_.get());
        clear(ground);
    }
    ~Canvas() { ::SelectObject(dc_.get(), previous_); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC dc() const noexcept { return dc_.get(); }
    Size size() const noexcept { return size_; }
    PixelView view() const noexcept
    {
        ::GdiFlush();
        return {static_cast<Pixel*>(bits_), size_, size_.width};
    }

    void clear(Color ground)
    {
        const PixelView all = view();
        std::fill_n(all.pixels, count(), premultiplied(ground, 255) & 0xFFFFFF);
    }
    // Blue, green and red only: GDI leaves anything in the fourth byte.
    Pixel at(std::int32_t x, std::int32_t y) const { return view().row(y)[x] & 0xFFFFFF; }
    std::vector<Pixel> pixels() const
    {
        const PixelView all = view();
        std::vector<Pixel> copy(all.pixels, all.pixels + count());
        for (Pixel& pixel : copy)
            pixel &= 0xFFFFFF;
        return copy;
    }

    // The smallest rectangle around all pixels that differ from those before.
    Rect changed(const std::vector<Pixel>& before) const
    {
        const std::vector<Pixel> now = pixels();
        Rect box;
        for (std::size_t i = 0; i < now.size(); ++i) {
            const auto at = static_cast<std::int32_t>(i);
            if (now[i] != before[i])
                box = around(box, {at % size_.width, at / size_.width});
        }
        return box;
    }

private:
    static Rect around(const Rect& box, Point point) noexcept
    {
        if (isEmpty(box))
            return {point.x, point.y, 1, 1};
        const std::int32_t left = std::min(box.x, point.x);
        const std::int32_t top = std::min(box.y, point.y);
        return {left, top, std::max(box.x + box.width, point.x + 1) - left,
                std::max(box.y + box.height, point.y + 1) - top};
    }

    std::size_t count() const noexcept
    {
        return static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height);
    }

    Size size_;
    OwnedMemoryDc dc_;
    OwnedBitmap bitmap_;
    void* bits_ = nullptr;
    HGDIOBJ previous_ = nullptr;
};

} // namespace vela::testing
