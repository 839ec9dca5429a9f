#include "vela/render/bitmaps/bitmap_geometry.h"

#include "vela/render/pixels/length_limits.h"
#include "vela/render/shapes/shape.h"

#include <algorithm>

namespace vela {
namespace {

// Larger than any screen: an outline takes a look at every pixel.
constexpr std::int64_t kMostOutlinePixels = 64'000'000;

const TintedBitmap* outlineBitmap(AlphaHitMode mode, const SurfaceBitmaps& bitmaps) noexcept
{
    return mode == AlphaHitMode::MaskLayout ? bitmaps.mask : bitmaps.skin;
}

AlphaHitMode wantedMode(const SurfaceStyle& style) noexcept
{
    if (style.geometry && style.geometry->mode != AlphaHitMode::ShapeFallback)
        return style.geometry->mode;
    return style.useSkinAlphaHitTest ? AlphaHitMode::SkinAlphaHit : AlphaHitMode::ShapeFallback;
}

bool isWithin(Size surface, const Insets& insets, Point point) noexcept
{
    return !isEmpty(
        intersection(insetBy({0, 0, surface.width, surface.height}, insets), {point.x, point.y, 1, 1}));
}

Span longestRun(const RunMask& outline, std::int32_t y)
{
    Span longest;
    for (const Span* run = outline.rowBegin(y); run != outline.rowEnd(y); ++run)
        if (run->length() > longest.length())
            longest = *run;
    return longest;
}

} // namespace

AlphaHitMode alphaHitMode(const SurfaceStyle& style, const SurfaceBitmaps& bitmaps) noexcept
{
    const AlphaHitMode mode = wantedMode(style);
    return outlineBitmap(mode, bitmaps) ? mode : AlphaHitMode::ShapeFallback;
}

std::optional<RunMask> bitmapOutline(const SurfaceStyle& style, Size surface, const SurfaceBitmaps& bitmaps)
{
    const AlphaHitMode mode = alphaHitMode(style, bitmaps);
    if (mode != AlphaHitMode::AlphaLayout && mode != AlphaHitMode::MaskLayout)
        return {};
    if (std::int64_t{surface.width} * surface.height > kMostOutlinePixels)
        return {};
    return alphaRuns(*outlineBitmap(mode, bitmaps), bitmapPlacement(style, surface), surface,
                     style.alphaThreshold);
}

bool hitSurface(const SurfaceStyle& style, ShapeKind shape, Size surface, Point point,
                const SurfaceBitmaps& bitmaps)
{
    if (!isWithin(surface, style.geometry ? limitedInsets(style.geometry->hitInsets) : Insets{}, point))
        return false;
    const AlphaHitMode mode = alphaHitMode(style, bitmaps);
    if (mode == AlphaHitMode::ShapeFallback)
        return pointInShape(shape, surface.width, surface.height, point);
    const BitmapPlacement placement = bitmapPlacement(style, surface);
    // A threshold of 0 takes in every pixel of the bitmap, but none beside it.
    const bool onBitmap = !isEmpty(intersection(placement.rect, {point.x, point.y, 1, 1}));
    return onBitmap && alphaAt(*outlineBitmap(mode, bitmaps), placement, point) >= style.alphaThreshold;
}

Span layoutColumns(const SurfaceGeometry& geometry, const RunMask& outline, std::int32_t y)
{
    const Insets insets = limitedInsets(geometry.layoutInsets);
    const Span outlineRows{0, outline.size().height};
    const Span rows = intersect(outlineRows, {insets.top, outlineRows.end - insets.bottom});
    const std::int32_t height = geometry.bandHeight > 0 ? geometry.bandHeight : std::max(rows.length(), 1);
    if (y < rows.begin || y >= rows.end)
        return {};
    const std::int32_t top = rows.begin + (y - rows.begin) / height * height;
    const Span band = intersect(rows, {top, top + std::min(height, rows.end - top)});
    Span free{insets.left, outline.size().width - insets.right};
    for (std::int32_t row = band.begin; row < band.end; ++row)
        free = intersect(free, longestRun(outline, row));
    return free.empty() ? Span{} : free;
}

Rect roomOn(const SurfaceStyle& style, const Rect& surface, PartInsets part, const RunMask* outline)
{
    Rect room = insetBy(surface, insetsOf(style, part));
    if (!outline)
        return room;
    const Span columns = layoutColumns(*style.geometry, *outline, surface.height / 2);
    // An outline that leaves no column free, as one with a soft edge, says nothing of where content may
    // stand.
    return columns.empty()
               ? room
               : intersection(room, {surface.x + columns.begin, room.y, columns.length(), room.height});
}

} // namespace vela
