// Small smooth things drawn straight onto a device context: marks, rings around the focus, the fill of a
// progress bar. Device pixels; the pixels themselves are made in smooth.h.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/smooth.h"
#include "vela/theme/surface_style.h"

#include <cstdint>

namespace vela {

void paintGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color);

// Where a mark on a small plate of that shape has air around it and keeps clear of its slopes.
constexpr Rect markBox(ShapeKind shape, const Rect& plate) noexcept
{
    const std::int32_t inset = plate.width / (shape == ShapeKind::Diamond ? 5 : 8);
    return {plate.x + inset, plate.y + inset, plate.width - 2 * inset, plate.height - 2 * inset};
}

// A band along the inside of the shape's outline, as wide as the DPI asks for.
void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color);

// A dot or a small plate behind a symbol.
void paintBadge(HDC dc, const Rect& rect, ShapeKind shape, Color color);

// The same as a styled surface, all its layers but shadow and glow.
void paintBadge(HDC dc, const Rect& rect, const SurfaceStyle& style);

// All layers of a control's surface; round and slanted edges are smooth, straight ones crisp.
void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);

// The fill's surface from the track's left edge to `end` pixels, which may be a fraction.
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end);

} // namespace vela
