#include "vela/render/bitmaps/bitmap_cache.h"

#include "vela/render/bitmaps/bitmap_path.h"

#include <string_view>
#include <utility>

namespace vela {
namespace {

std::size_t nextFolderNumber() noexcept
{
    static std::size_t number = 0;
    return ++number;
}

} // namespace

// Of PictureStore.
struct BitmapCache::Pictures {
    using Key = BitmapCache::Key;
    using Value = Bitmap;
    static std::size_t weigh(const Bitmap& bitmap) noexcept
    {
        return bitmap ? bitmap->weight() * sizeof(Pixel) : 0;
    }
};

std::size_t BitmapCache::View::hash() const noexcept
{
    return HashSum()
        .add(std::hash<std::wstring_view>()(path))
        .add(folder)
        .add(static_cast<std::uint64_t>(use) << 32 | static_cast<std::uint64_t>(tint.mode))
        .add(static_cast<std::uint64_t>(tint.primary.color) << 32 | tint.secondary.color)
        .value();
}

BitmapCache::BitmapCache(PictureStore& store, Decode decode, std::wstring folder)
    : store_(store), decode_(decode), folder_(std::move(folder)), folderNumber_(nextFolderNumber())
{
}

void BitmapCache::setFolder(std::wstring folder)
{
    folder_ = std::move(folder);
    folderNumber_ = nextFolderNumber();
}

LoadedBitmaps BitmapCache::find(const SurfaceStyle& style)
{
    static const BitmapTint kUntinted;
    LoadedBitmaps loaded;
    if (style.image && !style.image->path.empty())
        loaded.skin = find(Use::Skin, style.image->path, style.image->tint);
    if (style.geometry && style.geometry->mode == AlphaHitMode::MaskLayout &&
        !style.geometry->maskPath.empty())
        loaded.mask = find(Use::Mask, style.geometry->maskPath, kUntinted);
    return loaded;
}

BitmapCache::Bitmap BitmapCache::find(Use use, const std::wstring& path, const BitmapTint& tint)
{
    const View view{use, folderNumber_, path, tint};
    return *store_.ensure<Pictures>(view, [&] { return std::make_shared<Bitmap>(load(view)); });
}

BitmapCache::Bitmap BitmapCache::load(const View& view)
{
    const std::wstring file = bitmapFile(folder_, view.path);
    if (file.empty())
        return nullptr;
    ++decoded_;
    BitmapImage image = decode_(file);
    if (isEmpty(image.size))
        return nullptr;
    return std::make_shared<const TintedBitmap>(view.use == Use::Mask
                                                    ? TintedBitmap::fromMask(std::move(image))
                                                    : TintedBitmap(std::move(image), view.tint));
}

} // namespace vela
