#include "vela/render/bitmaps/bitmap_cache.h"

#include "vela/render/bitmaps/bitmap_path.h"

#include <algorithm>
#include <utility>

namespace vela {
namespace {

constexpr std::size_t kMostPictures = 128;

} // namespace

// A picture counts its pixels, and none so few that more than kMostPictures would be cached.
std::size_t BitmapCache::Weight::operator()(const Picture& picture) const noexcept
{
    const Size size = picture ? picture->size() : Size{};
    return std::max(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                    kMostImagePixels / kMostPictures);
}

BitmapCache::BitmapCache(Decode decode, std::wstring folder)
    : decode_(decode), folder_(std::move(folder)), pictures_(kMostImagePixels)
{
}

void BitmapCache::setFolder(std::wstring folder)
{
    folder_ = std::move(folder);
    pictures_ = decltype(pictures_)(kMostImagePixels);
}

LoadedBitmaps BitmapCache::find(const SurfaceStyle& style)
{
    LoadedBitmaps loaded;
    if (style.image && !style.image->path.empty())
        loaded.skin = find({Use::Skin, *style.image});
    if (style.geometry && style.geometry->mode == AlphaHitMode::MaskLayout &&
        !style.geometry->maskPath.empty())
        loaded.mask = find({Use::Mask, {style.geometry->maskPath, {}}});
    return loaded;
}

BitmapCache::Picture BitmapCache::find(const Key& key)
{
    return pictures_.ensure(key, [&] { return load(key); });
}

BitmapCache::Picture BitmapCache::load(const Key& key)
{
    const std::wstring file = bitmapFile(folder_, key.skin.path);
    if (file.empty())
        return nullptr;
    ++decoded_;
    const BitmapImage image = decode_(file);
    if (isEmpty(image.size))
        return nullptr;
    return std::make_shared<const TintedBitmap>(key.use == Use::Mask ? TintedBitmap::fromMask(image)
                                                                     : TintedBitmap(image, key.skin.tint));
}

} // namespace vela
