// Small things drawn with smooth edges: marks, caption icons, badges, rings around the focus and the end of
// a progress fill. Each call writes the whole target, transparent where nothing is drawn. Rectangles are in
// the coordinates of the target's surface; a line that lies on whole pixels stays crisp.
#pragma once

#include "vela/geometry.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela {

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

// The icon fills the square in the middle of the box. The line grows with the DPI.
void drawIcon(const LayerTarget& target, Icon icon, const Rect& box, std::int32_t dpi, Color color,
              std::uint8_t alpha = 255);

// The side of a caption icon's box, in pixels.
std::int32_t captionIconSize(std::int32_t dpi) noexcept;

// Where a mark on a small plate of that shape has air around it and keeps clear of its slopes.
constexpr Rect markBox(ShapeKind shape, const Rect& plate) noexcept
{
    const std::int32_t inset = plate.width / (shape == ShapeKind::Diamond ? 5 : 8);
    return {plate.x + inset, plate.y + inset, plate.width - 2 * inset, plate.height - 2 * inset};
}

// A shape filled with a smooth edge: badges, dots, check boxes of any size.
void fillSmoothShape(const LayerTarget& target, ShapeKind kind, const Rect& rect, Color color,
                     std::uint8_t alpha = 255);

// A band along the shape's outline, width pixels wide, that begins so deep inside it: smooth borders, and
// where the depth is negative, rings around the shape.
void strokeSmoothShape(const LayerTarget& target, ShapeKind kind, const Rect& rect, float width, Color color,
                       float depth = 0);

// Keeps of the target's pixels what lies in the shape when it ends at a fraction of a pixel on the right.
// Round ends stay round however short the shape gets; slanted ones keep their slant.
void cutToProgress(const LayerTarget& target, ShapeKind kind, const Rect& rect, float end);

} // namespace vela
