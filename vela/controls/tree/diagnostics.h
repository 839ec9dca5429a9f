// Values as the lines write them that a window with diagnostics sends to the debugger. Formats are fixed:
// tools read them.
#pragma once

#include "vela/controls/tree/layout.h"
#include "vela/geometry.h"

#include <string>

namespace vela {

std::wstring toText(Point point);      // {x=1,y=2}
std::wstring toText(Size size);        // 3x4
std::wstring toText(const Rect& rect); // {x=1,y=2,w=3,h=4}
std::wstring toText(Anchors anchors);  // Left|Top, None

} // namespace vela
