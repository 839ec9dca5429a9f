// Symbols drawn as lines of a pen, at any size: check marks, chevrons, the signs of caption buttons and of
// notices. A drawing writes the whole target, transparent where nothing is drawn.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/color/color.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela {

struct LayerTarget;

enum class Icon : std::uint8_t {
    Check,
    ChevronUp,
    ChevronDown,
    ChevronLeft,
    ChevronRight,
    Minimize,
    Maximize,
    Restore,
    ResetSize,
    Close,
    Info,
    Warning,
    Failure,
};
inline constexpr int kIconCount = 13;

// The icon fills the square in the middle of the box, which is in the coordinates of the target's surface.
// The line grows with the DPI.
void drawIcon(const LayerTarget& target, Icon icon, const Rect& box, std::int32_t dpi, Color color,
              std::uint8_t alpha = 255);

// The side of a caption icon's box, in pixels.
std::int32_t captionIconSize(std::int32_t dpi) noexcept;

// Where an icon on a badge of that shape has air around it and keeps clear of its slopes.
constexpr Rect iconBoxOn(ShapeKind shape, const Rect& badge) noexcept
{
    const std::int32_t inset = badge.width / (shape == ShapeKind::Diamond ? 5 : 8);
    return {badge.x + inset, badge.y + inset, badge.width - 2 * inset, badge.height - 2 * inset};
}

} // namespace vela
