#include "vela/render/bitmap_cache.h"

#include "vela/render/bitmap_path.h"

#include <algorithm>
#include <utility>

namespace vela {
namespace {

// As many pixels as the largest picture has that is accepted at all.
constexpr std::int64_t kMostPixels = 64'000'000;
constexpr std::size_t kMostEntries = 128;

} // namespace

void BitmapCache::setFolder(std::wstring folder)
{
    folder_ = std::move(folder);
    entries_.clear();
}

LoadedBitmaps BitmapCache::find(const SurfaceStyle& style)
{
    LoadedBitmaps loaded;
    if (style.image && !style.image->path.empty())
        loaded.skin = find(style.image->path, Use::Skin, style.image->tint);
    if (style.geometry && style.geometry->mode == AlphaHitMode::MaskLayout &&
        !style.geometry->maskPath.empty())
        loaded.mask = find(style.geometry->maskPath, Use::Mask, {});
    return loaded;
}

std::shared_ptr<const SkinBitmap> BitmapCache::find(const std::wstring& path, Use use, const BitmapTint& tint)
{
    for (Entry& entry : entries_) {
        if (entry.use == use && entry.path == path && entry.tint == tint) {
            entry.lastUse = ++clock_;
            return entry.bitmap;
        }
    }
    std::shared_ptr<const SkinBitmap> bitmap = load(path, use, tint);
    const std::int64_t pixels = bitmap ? std::int64_t{bitmap->size().width} * bitmap->size().height : 0;
    makeRoom(pixels);
    entries_.push_back({path, use, tint, bitmap, ++clock_, pixels});
    return bitmap;
}

std::shared_ptr<const SkinBitmap> BitmapCache::load(const std::wstring& path, Use use, const BitmapTint& tint)
{
    const std::wstring file = bitmapFile(folder_, path);
    if (file.empty())
        return nullptr;
    ++decoded_;
    const BitmapImage image = decode_(file);
    if (isEmpty(image.size))
        return nullptr;
    return std::make_shared<const SkinBitmap>(use == Use::Mask ? SkinBitmap::fromMask(image)
                                                               : SkinBitmap(image, tint));
}

void BitmapCache::makeRoom(std::int64_t pixels)
{
    for (const Entry& entry : entries_)
        pixels += entry.pixels;
    while (!entries_.empty() && (pixels > kMostPixels || entries_.size() >= kMostEntries)) {
        const auto oldest =
            std::min_element(entries_.begin(), entries_.end(),
                             [](const Entry& a, const Entry& b) { return a.lastUse < b.lastUse; });
        pixels -= oldest->pixels;
        entries_.erase(oldest);
    }
}

} // namespace vela
