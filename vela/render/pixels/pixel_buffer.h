// The pixels that software layers write: 32 bits each, bytes in the order blue, green, red, alpha, colour
// already multiplied by alpha, rows from top to bottom.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/color/color.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vela {

using Pixel = std::uint32_t; // blue in the low byte

constexpr Pixel makePixel(unsigned red, unsigned green, unsigned blue, unsigned alpha) noexcept
{
    return blue | green << 8 | red << 16 | alpha << 24;
}

constexpr unsigned alphaOf(Pixel pixel) noexcept { return pixel >> 24; }

// The one place where a stored colour becomes a pixel. Channels are rounded down.
constexpr Pixel premultiplied(Color color, unsigned alpha) noexcept
{
    return makePixel(redOf(color) * alpha / 255, greenOf(color) * alpha / 255, blueOf(color) * alpha / 255,
                     alpha);
}

// Pixels that somebody else owns.
struct PixelView {
    Pixel* pixels = nullptr;
    Size size;
    std::ptrdiff_t stride = 0; // pixels from one row to the next

    Pixel* row(std::int32_t y) const noexcept { return pixels + y * stride; }
};

// Both of one size.
inline void copyPixels(const PixelView& from, const PixelView& to) noexcept
{
    for (std::int32_t y = 0; y < to.size.height; ++y)
        std::copy_n(from.row(y), to.size.width, to.row(y));
}

// Pixels with storage of their own, rows without gaps.
class OwnedPixels {
public:
    explicit OwnedPixels(Size size)
        : size_(size), pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height))
    {
    }
    PixelView view() noexcept { return {pixels_.data(), size_, size_.width}; }
    std::size_t bytes() const noexcept { return pixels_.size() * sizeof(Pixel); }

private:
    Size size_;
    std::vector<Pixel> pixels_;
};

// Where a layer writes: the visible part of a surface. A layer writes every pixel of it, transparent ones
// too, so the buffer need not be cleared before.
struct LayerTarget {
    PixelView view;
    Point origin; // the surface's pixel that the view's first pixel shows

    constexpr Rect visible() const noexcept
    {
        return {origin.x, origin.y, view.size.width, view.size.height};
    }
    // The same pixels, as far as they show that part of the surface; the part lies within visible().
    LayerTarget part(const Rect& rect) const noexcept
    {
        return {{view.row(rect.y - origin.y) + (rect.x - origin.x), sizeOf(rect), view.stride},
                {rect.x, rect.y}};
    }
};

// Storage that is reused from one layer to the next. The pixels of a fresh view hold whatever was there
// before.
class PixelBuffer {
public:
    // Valid until the next call.
    PixelView ensure(Size size)
    {
        if (isEmpty(size))
            return {};
        const auto count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
        if (storage_.size() < count)
            storage_.resize(count);
        return {storage_.data(), size, size.width};
    }

private:
    std::vector<Pixel> storage_;
};

} // namespace vela
