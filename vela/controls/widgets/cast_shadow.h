// The shadow that a popup or a tooltip casts on what it stands on. One that fills its window has nothing to
// cast it on; there the desktop's compositor draws the window's own.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

class Control;

class CastShadow {
public:
    CastShadow() = default;
    // Of a surface, in that colour, moved by the offset.
    CastShadow(const SurfaceStyle& surface, Color color, Point offset);

    // Under the control, which stands at `box`.
    void paint(HDC dc, const Control& control, const Rect& box) const;
    // Nothing but the shadow.
    const SurfaceStyle& surface() const noexcept { return style_; }

private:
    SurfaceStyle style_;
};

} // namespace vela
