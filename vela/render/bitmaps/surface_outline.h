// The outline that a bitmap gives a surface, cached from paint to paint: every layer, the window region and
// the next repaint walk the same runs.
#pragma once

#include "vela/render/bitmaps/bitmap_cache.h"

namespace vela {

// Null when the surface's shape is its outline. Valid until the next call. UI thread only.
const RunMask* surfaceOutline(const SurfaceStyle& style, Size size, const LoadedBitmaps& bitmaps);

// What the surface's layers may touch: that outline or its shape. Valid as long.
Coverage surfaceCoverage(const SurfaceStyle& style, Size size, const LoadedBitmaps& bitmaps);

} // namespace vela
