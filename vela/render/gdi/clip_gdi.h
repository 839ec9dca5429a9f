// What of a rectangle can be seen through a device context's clip.
#pragma once

#include "vela/geometry.h"

#include <optional>
#include <vector>

#include <windows.h>

namespace vela {

// The clip's bounding box, empty when it hides everything; none when the context cannot tell it, and then
// everything counts as seen.
std::optional<Rect> clipBox(HDC dc) noexcept;

// The part of the rectangle inside the clip box.
Rect visiblePart(HDC dc, const Rect& rect) noexcept;

// Narrows the clip to what lies in it and in at least one rectangle; restoreClip puts the context back as it
// was then.
int narrowClip(HDC dc, const std::vector<Rect>& rects);
void restoreClip(HDC dc, int saved) noexcept;

inline bool isVisible(HDC dc, const Rect& rect) noexcept { return !isEmpty(visiblePart(dc, rect)); }

} // namespace vela
