// The small smooth things of smooth.h, drawn on a device context. Rectangles are in its logical pixels.
#pragma once

#include "vela/platform_handles.h"
#include "vela/render/smooth.h"
#include "vela/theme/surface_style.h"

namespace vela {

void drawGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color, std::uint8_t alpha = 255);
void fillSmoothShape(HDC dc, ShapeKind kind, const Rect& rect, Color color, std::uint8_t alpha = 255);
void strokeSmoothShape(HDC dc, ShapeKind kind, const Rect& rect, float width, Color color,
                       std::uint8_t alpha = 255);

// A surface as far as a fraction of a pixel from its left: the fill of a progress bar. Nothing grows or
// shrinks with the progress but the end.
void paintProgressSurface(HDC dc, const Rect& rect, const SurfaceStyle& style, float end);

} // namespace vela
