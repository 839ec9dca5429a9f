#include "vela/render/bitmaps/surface_outline.h"

#include "vela/render/pixels/bounded_cache.h"

namespace vela {
namespace {

constexpr std::size_t kMostOutlines = 32;

// All that an outline is made of. It keeps the bitmap alive, so no other one can take its address.
struct OutlineKey {
    std::shared_ptr<const TintedBitmap> bitmap;
    AlphaHitMode mode;
    std::uint8_t threshold;
    Size size;
    BitmapPlacement placement;

    friend bool operator==(const OutlineKey& a, const OutlineKey& b) noexcept
    {
        return a.bitmap == b.bitmap && a.mode == b.mode && a.threshold == b.threshold && a.size == b.size &&
               a.placement == b.placement;
    }
};

} // namespace

const RunMask* surfaceOutline(const SurfaceStyle& style, Size size, const LoadedBitmaps& bitmaps)
{
    static BoundedCache<OutlineKey, std::optional<RunMask>> outlines(kMostOutlines);
    if (!bitmaps.skin && !bitmaps.mask)
        return nullptr;
    const AlphaHitMode mode = alphaHitMode(style, bitmaps.view());
    const OutlineKey key{mode == AlphaHitMode::MaskLayout ? bitmaps.mask : bitmaps.skin, mode,
                         style.alphaThreshold, size, bitmapPlacement(style, size)};
    const std::optional<RunMask>& outline =
        outlines.ensure(key, [&] { return bitmapOutline(style, size, bitmaps.view()); });
    return outline ? &*outline : nullptr;
}

Coverage surfaceCoverage(const SurfaceStyle& style, Size size, const LoadedBitmaps& bitmaps)
{
    const RunMask* const outline = surfaceOutline(style, size, bitmaps);
    return outline ? Coverage(*outline) : Coverage(style.shape, size);
}

} // namespace vela
