// Pictures on disk, written and read with the Windows Imaging Component. COM must be initialised.
#pragma once

#include "vela/render/pixel_buffer.h"

#include <string>
#include <vector>

namespace tools {

// Rows of opaque pixels from top to bottom; alpha is ignored.
bool writePng(const std::wstring& path, const vela::PixelView& picture);

struct Picture {
    vela::Size size;
    std::vector<vela::Pixel> pixels; // empty when the file could not be read
};
Picture readPng(const std::wstring& path);

} // namespace tools
