// What of a rectangle can be seen through a device context's clip.
#pragma once

#include "vela/geometry.h"

#include <windows.h>

namespace vela {

// The part of the rectangle inside the clip's bounding box; empty when nothing of it shows. A context that
// cannot tell its clip shows everything.
Rect visiblePart(HDC dc, const Rect& rect) noexcept;

inline bool isVisible(HDC dc, const Rect& rect) noexcept { return !isEmpty(visiblePart(dc, rect)); }

} // namespace vela
