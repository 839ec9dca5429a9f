// What controls paint beside text, straight onto a device context: their surfaces with smooth edges, icons,
// rings around the focus, the fill of a progress bar. Device pixels; the smooth pixels themselves are made in
// smooth.h.
#pragma once

#include "vela/geometry.h"
#include "vela/mul_div.h"
#include "vela/platform_handles.h"
#include "vela/render/shapes/smooth.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

void paintGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color);

// Where a mark on a small plate of that shape has air around it and keeps clear of its slopes.
constexpr Rect markBox(ShapeKind shape, const Rect& plate) noexcept
{
    const std::int32_t inset = plate.width / (shape == ShapeKind::Diamond ? 5 : 8);
    return {plate.x + inset, plate.y + inset, plate.width - 2 * inset, plate.height - 2 * inset};
}

// A band of the shape around the rectangle, with a hair of ground between the two: it lies on what the
// control lies on, and is seen whatever the control's own colours are.
void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color);

// 96-DPI pixels: two are the least that is seen on every monitor.
inline constexpr std::int32_t kFocusRingWidth = 2;
inline constexpr std::int32_t kFocusRingGap = 1;

constexpr std::int32_t focusRingReach(std::int32_t dpi) noexcept
{
    return mulDiv(kFocusRingWidth, dpi, kDesignDpi) + mulDiv(kFocusRingGap, dpi, kDesignDpi);
}

// The rectangle that the ring around another one stays in: the points of a hexagon and the corners of a
// slanted shape make it reach further to the sides.
constexpr Rect focusRingBounds(const Rect& rect, std::int32_t dpi) noexcept
{
    const std::int32_t reach = focusRingReach(dpi);
    return {rect.x - 2 * reach, rect.y - reach, rect.width + 4 * reach, rect.height + 2 * reach};
}

// A dot or a small plate behind a symbol.
void paintBadge(HDC dc, const Rect& rect, ShapeKind shape, Color color);

// The same as a styled surface, all its layers but shadow and glow.
void paintBadge(HDC dc, const Rect& rect, const SurfaceStyle& style);

// All layers of a control's surface; round and slanted edges are smooth, straight ones crisp.
void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);

// The fill's surface from the track's left edge to `end` pixels, which may be a fraction.
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end);

} // namespace vela
