// What controls paint on their surfaces and around them: icons, rings around the focus. What paint.h promises
// about them.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/shapes/icons.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>

namespace vela::render {

void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color);
void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color);

} // namespace vela::render
