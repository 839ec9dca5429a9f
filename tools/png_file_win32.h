// Pictures on disk, written and read with the Windows Imaging Component. COM must be initialised.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

#include <string>
#include <vector>

namespace tools {

// What becomes of the fourth channel: dropped, or stored as it is beside colours that stay as they are,
// whether multiplied by it or not.
enum class PngAlpha { Dropped, Stored };

// Rows of pixels from top to bottom.
bool writePng(const std::wstring& path, const vela::PixelView& picture, PngAlpha alpha = PngAlpha::Dropped);

struct Picture {
    vela::Size size;
    std::vector<vela::Pixel> pixels; // empty when the file could not be read
};
Picture readPng(const std::wstring& path, PngAlpha alpha = PngAlpha::Dropped);

} // namespace tools
