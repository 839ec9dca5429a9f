// What controls paint beside text and plain surfaces: surfaces with antialiased edges, icons, rings around
// the focus, the fill of a progress bar. What paint.h promises about them.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/shapes/icons.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela::render {

void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);
void paintControlFace(HDC dc, const Rect& rect, const SurfaceStyle& style);
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end);
void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color);
void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color);

} // namespace vela::render
