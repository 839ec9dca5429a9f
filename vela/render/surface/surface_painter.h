// Painting of styled surfaces on a device context. Rectangles are in the context's logical pixels, which are
// the window's client pixels. No layer reports failure: one that cannot be made is left out. UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/bitmaps/surface_insets.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// One layer alone, whatever the style's switches say.
void drawGradientShape(HDC dc, const Rect& rect, const SurfaceStyle& style);
void drawMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style);
void drawSpatialSurfaceShading(HDC dc, const Rect& rect, const SurfaceStyle& style);
void drawInnerShadow(HDC dc, const Rect& rect, const SurfaceStyle& style);
void drawNoise(HDC dc, const Rect& rect, const SurfaceStyle& style);

// What paint.h promises about surfaces.
namespace render {

void paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);
void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end);
bool isOnSurface(const SurfaceStyle& style, ShapeKind hitShape, Size size, Point point);
Rect surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part);

} // namespace render
} // namespace vela
