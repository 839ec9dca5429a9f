// Picture files, decoded by the Windows Imaging Component, which COM loads from the system folder when first
// asked for. COM is opened for the call where the calling thread has not done so.
#pragma once

#include "vela/render/bitmaps/bitmap_image.h"

#include <string>

namespace vela {

// PNG, JPEG, BMP or GIF (its first frame), told apart by content. Empty when the file is missing, damaged, a
// link to elsewhere, of another kind or has over kMostImagePixels.
BitmapImage decodeImage(const std::wstring& file);

} // namespace vela
