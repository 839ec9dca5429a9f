// A surface's bitmap, ready to be painted: tinted, premultiplied, laid over the surface whole or in nine
// parts.
#pragma once

#include "vela/render/bitmaps/bitmap_image.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/shapes/coverage.h"
#include "vela/theme/records/surface_style.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vela {

// Immutable, so it can be shared and cached. The picture must not be empty.
class TintedBitmap {
public:
    // The picture is tinted where it lies: a large one, moved in, is never there twice.
    TintedBitmap(BitmapImage image, const BitmapTint& tint);
    // A picture that only says where: by its alpha or, when it is opaque, by its brightness.
    static TintedBitmap fromMask(BitmapImage image);

    BitmapCover cover() const noexcept { return cover_; } // Full when every pixel is opaque
    Size size() const noexcept { return levels_.front().size; }
    std::size_t weight() const noexcept; // in pixels, those of the halved pictures too

    // The picture itself, and halved again and again: strong reductions start from the level closest above.
    const BitmapImage& levelFor(Size painted) const noexcept;
    const BitmapImage& original() const noexcept { return levels_.front(); }

private:
    std::vector<BitmapImage> levels_; // premultiplied
    BitmapCover cover_ = BitmapCover::Full;
};

// Where on the surface a bitmap lies, and which of its margins only grow with the DPI.
struct BitmapPlacement {
    Rect rect;
    Insets fixedMargins = {}; // pixels of the bitmap; all 0 when it is stretched whole
    std::int32_t dpi = 96;    // at which the margins lie on the surface

    friend bool operator==(const BitmapPlacement&, const BitmapPlacement&) = default;
};
BitmapPlacement bitmapPlacement(const SurfaceStyle& style, Size surface) noexcept;

// Full when the bitmap hides the whole surface.
BitmapCover coverOn(const TintedBitmap& bitmap, const BitmapPlacement& placement, Size surface) noexcept;

void fillBitmap(const LayerTarget& target, const Coverage& coverage, const TintedBitmap& bitmap,
                const BitmapPlacement& placement);

// The pixels of the surface where the bitmap's alpha reaches the threshold; none outside its placement.
// Painted layers, window region and hit test of a surface shaped by a bitmap all take this.
RunMask alphaRuns(const TintedBitmap& bitmap, const BitmapPlacement& placement, Size surface,
                  std::uint8_t threshold);

// The bitmap's alpha as it is painted there; 0 outside its placement.
std::uint8_t alphaAt(const TintedBitmap& bitmap, const BitmapPlacement& placement, Point point);

} // namespace vela
