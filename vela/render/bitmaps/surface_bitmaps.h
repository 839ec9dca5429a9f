// The bitmaps of the current skin. UI thread only.
#pragma once

#include "vela/render/bitmaps/bitmap_cache.h"

#include <string>

namespace vela {

// The folder of the current skin's document, to which the paths of its bitmaps are relative. To be called
// whenever another skin becomes the current one; without it surfaces have no bitmaps.
void setBitmapFolder(std::wstring folder);

// Those that the style names and that could be read.
LoadedBitmaps surfaceBitmaps(const SurfaceStyle& style);

} // namespace vela
