// Material overlays on their way to a device context, common to the graphics card and to software.
// UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// The overlay in software.
void drawSoftwareMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style);

// The material overlay in software, with its texture laid across the window whatever the style says, so that
// neighbouring surfaces show parts of one.
void drawSeamlessMaterialTextureOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style,
                                        PerformanceProfile profile);

// The surface's constants in this paint.
MaterialConstants currentMaterialConstants(HDC dc, const SurfaceStyle& style, const Rect& rect);

// Lays the surface's overlay, pixels of the rectangle's size, over it: cut to its shape or to its bitmap's.
void compositeMaterialOverlay(HDC dc, const Rect& rect, const SurfaceStyle& style, const PixelView& overlay);

} // namespace vela
