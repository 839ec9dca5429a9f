// The bitmaps that styles name, decoded and tinted when first painted and cached while there is room for
// them.
#pragma once

#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/bitmaps/tinted_bitmap.h"
#include "vela/render/pixels/picture_store.h"

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

    // Pictures are in the store, which outlives the cache.
    BitmapCache(PictureStore& store, Decode decode, std::wstring folder = {});

    // Where the paths of styles lead: the folder of the current skin's document. Forgets all bitmaps.
    void setFolder(std::wstring folder);

    LoadedBitmaps find(const SurfaceStyle& style);

    // How many files were looked for since the start, for tests: one that is not there is not looked for
    // again.
    std::size_t decoded() const noexcept { return decoded_; }

private:
    enum class Use : std::uint8_t { Skin, Mask };
    struct Pictures;
    struct View {
        Use use;
        std::size_t folder; // tells those of other folders and caches apart
        const std::wstring& path;
        const BitmapTint& tint;
        std::size_t hash() const noexcept;
    };
    struct Key {
        explicit Key(const View& view) : use(view.use), folder(view.folder), path(view.path), tint(view.tint)
        {
        }
        friend bool operator==(const View& view, const Key& key)
        {
            return view.use == key.use && view.folder == key.folder && view.path == key.path &&
                   view.tint == key.tint;
        }
        Use use;
        std::size_t folder;
        std::wstring path;
        BitmapTint tint;
    };
    using Bitmap = std::shared_ptr<const TintedBitmap>; // null: there is none, or it cannot be read

    Bitmap find(Use use, const std::wstring& path, const BitmapTint& tint);
    Bitmap load(const View& view);

    PictureStore& store_;
    Decode decode_;
    std::wstring folder_;
    std::size_t folderNumber_;
    std::size_t decoded_ = 0;
};

} // namespace vela
