// The program's own icon, drawn at any size.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"

namespace vela::render {

// Draws nothing in a program without an icon.
void paintProgramIcon(HDC dc, const Rect& box);

} // namespace vela::render
