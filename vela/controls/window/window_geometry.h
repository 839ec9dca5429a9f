// Where a window may stand and how large it may be, and which part of its frame the pointer is on. Screen and
// client pixels as plain numbers; the window turns its messages into these questions.
#pragma once

#include "vela/geometry.h"

#include <cstdint>

namespace vela {

enum class FrameZone : std::uint8_t {
    Client,
    Left,
    Right,
    Top,
    TopLeft,
    TopRight,
    Bottom,
    BottomLeft,
    BottomRight,
};

// The part of a custom frame under the pointer. The resize band lies inside the client edge and is `border`
// pixels wide; below 1 there is none.
FrameZone frameZoneAt(Size client, Point cursor, std::int32_t border) noexcept;

// Edges as Windows gives them while a window is being sized.
struct Edges {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    friend constexpr bool operator==(const Edges&, const Edges&) = default;
};

// The proposed edges, with the dragged edge moved back where the window would be below its minimum.
Edges clampedToMinimum(Edges proposed, FrameZone dragged, Size minimum) noexcept;

// A new window's place: no larger than the work area, centred in it, entirely inside it.
Rect initialPlacement(Size window, const Rect& workArea) noexcept;

// The same rectangle, moved and cut so that it lies inside the area.
Rect movedInside(const Rect& window, const Rect& area) noexcept;

// Where a tooltip of that size stands: below the pointer, above it where there is no room, always inside the
// area.
Rect tooltipPlacement(Size size, Point pointer, std::int32_t below, std::int32_t above,
                      const Rect& area) noexcept;

// Below this scale nothing could be read: a window that needs less is cut at the work area.
inline constexpr std::int32_t kSmallestFittingDpi = 48;

// The scale, as a DPI, for a client area designed in 96-DPI pixels: the monitor's, or as much less as it
// takes to fit the room.
std::int32_t fittingDpi(Size design, Size room, std::int32_t monitorDpi) noexcept;

struct TrackingSizes {
    Size maximised;
    Point maximisedAt; // relative to the monitor
    Size largest;
    Size smallest;
    friend constexpr bool operator==(const TrackingSizes&, const TrackingSizes&) = default;
};

// What Windows asks before it sizes or maximises a window; `largest` is what Windows itself proposes.
TrackingSizes trackingSizes(const Rect& monitor, const Rect& workArea, Size largest, Size minimum) noexcept;

} // namespace vela
