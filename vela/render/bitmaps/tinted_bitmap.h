// A surface's bitmap, ready to be painted: tinted, premultiplied, laid over the surface whole or in nine
// parts.
#pragma once

#include "vela/render/bitmaps/bitmap_image.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>
#include <vector>

namespace vela {

// Immutable, so it can be shared and cached. The picture must not be empty.
class TintedBitmap {
public:
    TintedBitmap(const BitmapImage& image, const BitmapTint& tint);
    // A picture that only says where: by its alpha or, when it is opaque, by its brightness.
    static TintedBitmap fromMask(const BitmapImage& image);

    BitmapCover cover() const noexcept { return cover_; }
    Size size() const noexcept { return levels_.front().size; }

    // Pixels in memory, the halved levels' included.
    std::size_t weight() const noexcept;

    // The picture itself, and halved again and again: strong reductions start from the level closest above.
    const BitmapImage& levelFor(Size painted) const noexcept;
    const BitmapImage& original() const noexcept { return levels_.front(); }

private:
    explicit TintedBitmap(BitmapImage premultiplied);

    std::vector<BitmapImage> levels_; // premultiplied
    BitmapCover cover_ = BitmapCover::Full;
};

// Where on the surface a bitmap lies, and which of its margins keep their size. Lengths are pixels.
struct BitmapPlacement {
    Rect rect;
    Insets fixedMargins; // of the bitmap and of the surface alike; all 0 when the bitmap is stretched whole
};
BitmapPlacement bitmapPlacement(const SurfaceStyle& style, Size surface) noexcept;

void fillBitmap(const LayerTarget& target, const Coverage& coverage, const TintedBitmap& bitmap,
                const BitmapPlacement& placement);

// The pixels of the surface where the bitmap's alpha reaches the threshold; none outside its placement.
// Painted layers, window region and hit test of a surface shaped by a bitmap all take this.
RunMask alphaRuns(const TintedBitmap& bitmap, const BitmapPlacement& placement, Size surface,
                  std::uint8_t threshold);

// The bitmap's alpha as it is painted there; 0 outside its placement.
std::uint8_t alphaAt(const TintedBitmap& bitmap, const BitmapPlacement& placement, Point point);

} // namespace vela
