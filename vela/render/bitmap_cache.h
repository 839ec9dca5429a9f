// The bitmaps that styles name, decoded and tinted when first painted and kept while there is room for them.
#pragma once

#include "vela/render/bitmap_geometry.h"
#include "vela/render/bitmap_skin.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vela {

// A surface's bitmaps, kept alive as long as this is.
struct LoadedBitmaps {
    std::shared_ptr<const SkinBitmap> skin;
    std::shared_ptr<const SkinBitmap> mask;

    SurfaceBitmaps view() const noexcept { return {skin.get(), mask.get()}; }
    friend bool operator==(const LoadedBitmaps&, const LoadedBitmaps&) = default; // the very same bitmaps
};

class BitmapCache {
public:
    // Reads a picture file; an empty image when it is missing, damaged or too large.
    using Decode = BitmapImage (*)(const std::wstring& file);

    explicit BitmapCache(Decode decode) : decode_(decode) {}

    // Where the paths of styles lead: the folder of the current skin's document. Forgets all bitmaps.
    void setFolder(std::wstring folder);

    LoadedBitmaps find(const SurfaceStyle& style);

    // How many files were looked for since the start; one that is not there is not looked for again.
    std::size_t decoded() const noexcept { return decoded_; }

private:
    enum class Use : std::uint8_t { Skin, Mask };
    struct Entry {
        std::wstring path;
        Use use;
        BitmapTint tint;
        std::shared_ptr<const SkinBitmap> bitmap; // null: no such picture
        std::uint64_t lastUse;
        std::int64_t pixels;
    };

    std::shared_ptr<const SkinBitmap> find(const std::wstring& path, Use use, const BitmapTint& tint);
    std::shared_ptr<const SkinBitmap> load(const std::wstring& path, Use use, const BitmapTint& tint);
    void makeRoom(std::int64_t pixels);

    Decode decode_;
    std::wstring folder_;
    std::vector<Entry> entries_;
    std::uint64_t clock_ = 0;
    std::size_t decoded_ = 0;
};

} // namespace vela
