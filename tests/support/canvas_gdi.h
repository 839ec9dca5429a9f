// A device context with pixels that a test can read.
#pragma once

#include "vela/render/gdi/dib_gdi.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vela::testing {

class Canvas {
public:
    explicit Canvas(Size size, Color background = 0) : size_(size), surface_(size) { clear(background); }

    HDC dc() const noexcept { return surface_.dc(); }
    Size size() const noexcept { return size_; }
    PixelView view() const noexcept { return surface_.pixels(); }

    void clear(Color background)
    {
        const PixelView all = view();
        std::fill_n(all.pixels, count(), premultiplied(background, 255) & 0xFFFFFF);
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
    DibSurface surface_;
};

} // namespace vela::testing
