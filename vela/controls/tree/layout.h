// Where a child stands inside its parent: anchors or relative constraints, then the minimum size. Plain
// arithmetic on values, in parent pixels; any 32-bit input is safe, results saturate at the type's limits.
#pragma once

#include "vela/geometry.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vela {

enum class Anchors : std::uint8_t { None = 0, Left = 1, Top = 2, Right = 4, Bottom = 8 };

constexpr Anchors operator|(Anchors left, Anchors right) noexcept
{
    return static_cast<Anchors>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}
constexpr bool contains(Anchors set, Anchors flag) noexcept
{
    return (static_cast<unsigned>(set) & static_cast<unsigned>(flag)) != 0;
}

// An edge lies at offset + round(parent extent * ratio), the ratio clamped to -1.0 ... 2.0.
struct EdgeConstraint {
    double ratio = 0.0;
    std::int32_t offset = 0;
    bool set = false;
};

struct ExtentConstraint {
    std::int32_t extent = 0;
    bool set = false;
};

struct Constraints {
    EdgeConstraint left;
    EdgeConstraint right;
    EdgeConstraint centerX;
    EdgeConstraint top;
    EdgeConstraint bottom;
    EdgeConstraint centerY;
    ExtentConstraint width;
    ExtentConstraint height;
};

// What the creator of a child asked for; the layout always starts from it, so growing and shrinking back
// gives the same rectangles.
struct LayoutRequest {
    Rect design;
    Size designParent;
    Anchors anchors = Anchors::Left | Anchors::Top;
    Constraints constraints;
    bool constraintsEnabled = false;
};

// The child's rectangle inside the parent's content rectangle, at least as large as its minimum.
Rect layoutChild(const LayoutRequest& request, Size minimum, const Rect& content) noexcept;

// The size of the parent when the design was captured: never smaller than the design itself.
Size capturedParentSize(const Rect& design, Size parent) noexcept;

// The smallest parent in which the child still fits at its minimum size under its anchors. A design parent
// without a size means that no layout has captured one yet.
Size minimumParentSizeHint(const Rect& design, Size designParent, Anchors anchors, Size minimum) noexcept;

Size largerOf(Size left, Size right) noexcept;
Size clampedAtZero(Size size) noexcept;

// Joins rectangles that continue the previous one downwards, until it is limit pixels high; drops empty ones.
// A limit of 1 or less returns the list as it is.
std::vector<Rect> coalescedDamage(const std::vector<Rect>& rects, std::int32_t limit);

} // namespace vela
