// A window at any DPI and its picture, without a monitor of that DPI and larger than any screen.
#pragma once

#include "vela/controls/window/window.h"
#include "vela/render/gdi/dib_gdi.h"

#include <memory>

namespace tools {

// What a monitor of that DPI would make of the window, in the same message. The design is the size of the
// client area at 96 DPI.
void changeDpi(const vela::Window& window, vela::Size design, std::int32_t dpi);

// The client area as the window paints it.
std::unique_ptr<vela::DibSurface> pictureOf(const vela::Window& window);

} // namespace tools
