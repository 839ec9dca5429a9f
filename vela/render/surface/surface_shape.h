// The outline of a surface on a device context: filled, stroked, and as the region of a window. UI thread
// only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

// The region that gives a window of that size the style's shape, from (0, 0); null for a plain rectangle. The
// caller owns it.
HRGN createShapeRegion(const SurfaceStyle& style, Size size);

// What paint.h promises about shapes.
namespace render {

void fillShape(HDC dc, const Rect& rect, ShapeKind kind, Color color);
void strokeShapeOutline(HDC dc, const Rect& rect, ShapeKind kind, Color color, std::int32_t penWidth);

} // namespace render
} // namespace vela
