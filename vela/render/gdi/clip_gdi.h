// What of a rectangle can be seen through a device context's clip.
#pragma once

#include "vela/geometry.h"

#include <optional>

#include <windows.h>

namespace vela {

// The clip's bounding box, empty when it hides everything; none when the context cannot tell it, and then
// everything counts as seen.
std::optional<Rect> clipBox(HDC dc) noexcept;

// The part of the rectangle inside the clip box.
Rect visiblePart(HDC dc, const Rect& rect) noexcept;

// Whether the clip shows all of its bounding box.
bool isClipRectangle(HDC dc) noexcept;

inline bool isVisible(HDC dc, const Rect& rect) noexcept { return !isEmpty(visiblePart(dc, rect)); }

} // namespace vela
