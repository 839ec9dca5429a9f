// The bitmaps of the current skin. UI thread only.
#pragma once

#include "vela/render/bitmaps/bitmap_cache.h"

#include <string>

namespace vela {

// For programs that show skins from elsewhere than the resource folders: the folder of the document that has
// become the current one, to which the paths of its bitmaps are relative. Forgets all bitmaps.
void setBitmapFolder(std::wstring folder);

// Those that the style names and that could be read.
LoadedBitmaps surfaceBitmaps(const SurfaceStyle& style);

} // namespace vela
