// Narrows what painting may touch to some rectangles for as long as it lives, and puts the device context
// back as it was.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"

#include <vector>

namespace vela {

class PaintClip {
public:
    // Device pixels; the clip becomes what lies in the old one and in at least one rectangle.
    PaintClip(HDC dc, const std::vector<Rect>& rects);
    ~PaintClip();
    PaintClip(const PaintClip&) = delete;
    PaintClip& operator=(const PaintClip&) = delete;

private:
    HDC dc_;
    int saved_;
};

} // namespace vela
