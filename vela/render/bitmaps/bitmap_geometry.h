// What a bitmap-skinned surface makes of its bitmap beside painting it: the outline of its layers, its hit
// test and the room it leaves for what lies on it.
#pragma once

#include "vela/render/bitmaps/surface_insets.h"
#include "vela/render/bitmaps/tinted_bitmap.h"
#include "vela/render/pixels/insets.h"

#include <optional>

namespace vela {

// The bitmaps of one surface; null where there is none or it could not be loaded. Borrowed.
struct SurfaceBitmaps {
    const TintedBitmap* skin = nullptr;
    const TintedBitmap* mask = nullptr;
};

// The mode in effect: without the bitmap that it needs, the shape decides.
AlphaHitMode alphaHitMode(const SurfaceStyle& style, const SurfaceBitmaps& bitmaps) noexcept;

// The outline that a bitmap gives the surface's layers and its window; none when its shape does, as on a
// surface beyond all measure.
std::optional<RunMask> bitmapOutline(const SurfaceStyle& style, Size surface, const SurfaceBitmaps& bitmaps);

// Whether the pixel of the surface reacts to the pointer: by its bitmap where the style says so, else by the
// shape.
bool hitSurface(const SurfaceStyle& style, ShapeKind shape, Size surface, Point point,
                const SurfaceBitmaps& bitmaps);

// The columns free for content at a height: common to all rows of its band (a band is as high as the geometry
// says, or the whole outline when it says nothing), within the layout insets.
Span layoutColumns(const SurfaceGeometry& geometry, const RunMask& outline, std::int32_t y);

// What a part's insets leave of the surface, in the columns free in the middle of the outline. Without an
// outline the surface's shape is it, and all columns are free.
Rect roomOn(const SurfaceStyle& style, const Rect& surface, PartInsets part, const RunMask* outline);

} // namespace vela
