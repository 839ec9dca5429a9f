// What painting asked of the renderer, where there is no renderer: natively the controls are linked with this
// instead. Text is measured by a ruler on which every unit is 8 pixels wide and every line 16 high at 96 DPI.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/surface_style.h"

#include <string>
#include <vector>

namespace vela::testing {

struct PaintCall {
    std::wstring what; // "surface", "text", "glyph", "icon", "ring", "progress", "line", "fill",
                       // "outline"
    Rect rect;
    std::wstring text;
    SurfaceStyle surface;
    Color color = 0;
};

// Everything painted since the last call.
std::vector<PaintCall> takePaintCalls();

} // namespace vela::testing
