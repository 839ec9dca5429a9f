// The bitmaps that styles name, decoded and tinted when first painted and cached while there is room for
// them.
#pragma once

#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/bitmaps/tinted_bitmap.h"
#include "vela/render/pixels/bounded_cache.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace vela {

// A surface's bitmaps, kept alive as long as this is.
struct LoadedBitmaps {
    std::shared_ptr<const TintedBitmap> skin;
    std::shared_ptr<const TintedBitmap> mask;

    SurfaceBitmaps view() const noexcept { return {skin.get(), mask.get()}; }
    friend bool operator==(const LoadedBitmaps&, const LoadedBitmaps&) = default; // the very same bitmaps
};

class BitmapCache {
public:
    // Reads a picture file; an empty image when it is missing, damaged or too large.
    using Decode = BitmapImage (*)(const std::wstring& file);

    explicit BitmapCache(Decode decode, std::wstring folder = {});

    // Where the paths of styles lead: the folder of the current skin's document. Forgets all bitmaps.
    void setFolder(std::wstring folder);

    LoadedBitmaps find(const SurfaceStyle& style);

    // How many files were looked for since the start, for tests: one that is not there is not looked for
    // again.
    std::size_t decoded() const noexcept { return decoded_; }

private:
    enum class Use : std::uint8_t { Skin, Mask };
    struct Key {
        Use use;
        BitmapSkin skin;
        friend bool operator==(const Key&, const Key&) = default;
    };
    using Picture = std::shared_ptr<const TintedBitmap>; // null: there is none, or it cannot be read
    struct Weight {
        std::size_t operator()(const Picture& picture) const noexcept;
    };

    Picture find(const Key& key);
    Picture load(const Key& key);

    Decode decode_;
    std::wstring folder_;
    BoundedCache<Key, Picture, Weight> pictures_;
    std::size_t decoded_ = 0;
};

} // namespace vela
