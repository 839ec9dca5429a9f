// What painting made of a piece of the picture, cached by value: the same thing painted over the same pixels
// is copied instead of painted again. With the cache and without it every pixel is the same.
#pragma once

#include "vela/render/pixels/bounded_cache.h"
#include "vela/render/pixels/pixel_buffer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vela {

// The pixels that something is painted over, told apart by size and digest.
struct Backdrop {
    Size size;
    std::uint64_t digest = 0;
    friend bool operator==(const Backdrop&, const Backdrop&) = default;
};

// A pixel's upper byte does not count: GDI leaves anything there.
Backdrop backdropOf(const PixelView& pixels) noexcept;

// What: a value that says everything a picture depends on beside its backdrop.
template <typename What>
class PictureCache {
public:
    explicit PictureCache(std::size_t mostPixels) : most_(mostPixels), pictures_(mostPixels) {}

    bool hasRoomFor(Size size) const noexcept { return !isEmpty(size) && areaOf(size) <= most_; }

    // The picture, empty when it is not cached; valid until the next call. `what` is anything that compares
    // with a What and converts to one.
    template <typename View>
    PixelView find(const View& what, const Backdrop& backdrop)
    {
        Picture* const picture = pictures_.find(Request<View>{what, backdrop});
        return picture ? picture->view() : PixelView{};
    }

    // Notes that something was painted there once more; true when it is not for the first time. Most things
    // are painted once in a place, as while a window is resized or a light moves: only where something is
    // painted a second time, a copy is worth while.
    bool noteAndIsRepeated(const Backdrop& backdrop) noexcept
    {
        if (std::find(lately_.begin(), lately_.end(), backdrop.digest) != lately_.end())
            return true;
        lately_[next_++ % lately_.size()] = backdrop.digest;
        return false;
    }

    template <typename View>
    void store(const View& what, const Backdrop& backdrop, const PixelView& pixels)
    {
        if (pixels.pixels)
            pictures_.ensure(Request<View>{what, backdrop}, [&pixels] { return Picture(pixels); });
    }

    std::size_t size() const noexcept { return pictures_.size(); }

private:
    template <typename View>
    struct Request {
        const View& what;
        const Backdrop& backdrop;
    };
    struct Key {
        template <typename View>
        explicit Key(const Request<View>& request) : what(request.what), backdrop(request.backdrop)
        {
        }
        template <typename View>
        friend bool operator==(const Request<View>& request, const Key& key)
        {
            return request.backdrop == key.backdrop && request.what == key.what;
        }

        What what;
        Backdrop backdrop;
    };
    struct Picture {
        explicit Picture(const PixelView& from) : size(from.size), pixels(areaOf(from.size))
        {
            copyPixels(from, view());
        }
        PixelView view() noexcept { return {pixels.data(), size, size.width}; }

        Size size;
        std::vector<Pixel> pixels;
    };
    struct PixelCount {
        std::size_t operator()(const Picture& picture) const noexcept { return picture.pixels.size(); }
    };

    static constexpr std::size_t areaOf(Size size) noexcept
    {
        return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    }

    std::size_t most_;
    std::vector<std::uint64_t> lately_ = std::vector<std::uint64_t>(1024); // an array would lie in the file
    std::size_t next_ = 0;
    BoundedCache<Key, Picture, PixelCount> pictures_;
};

} // namespace vela
