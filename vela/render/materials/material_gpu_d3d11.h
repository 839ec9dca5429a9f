// The material overlay on the graphics card: Direct3D 11 runs the material shader, the pixels are read back.
// The device and the compiled shaders are made at the first overlay and kept until the process ends; a
// machine where they cannot be made is asked once. UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela {

// Larger surfaces are rendered in software as far as they are seen, each time: a window as large as a 4K
// screen, and some.
inline constexpr std::int64_t kMostOverlayPixels = 10'000'000;

// Whether there is a usable graphics path.
bool hasMaterialGpu();

// Writes the premultiplied pixels of a whole surface, of the target's size. False, with nothing written,
// where there is no usable graphics path or this call failed: the caller then renders in software.
bool renderMaterialOnGpu(const MaterialConstants& constants, const PixelView& target);

// Lays the surface's overlay over it, cut to its shape. False, with nothing drawn, under the same conditions,
// and for a surface that is too large.
bool tryDrawMaterialOverlayHlsl(HDC dc, const Rect& rect, const SurfaceStyle& style);

} // namespace vela
