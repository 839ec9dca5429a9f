#include "vela/controls/window/window_geometry.h"

#include "vela/controls/tree/layout.h"
#include "vela/mul_div.h"

#include <algorithm>

namespace vela {

namespace {

enum Band { kNear, kMiddle, kFar };

// The first band wins where a window is narrower than both.
Band bandOf(std::int32_t position, std::int32_t extent, std::int32_t border) noexcept
{
    if (position < border)
        return kNear;
    return position >= std::int64_t{extent} - border ? kFar : kMiddle;
}

constexpr FrameZone kZones[3][3] = {
    {FrameZone::TopLeft, FrameZone::Top, FrameZone::TopRight},
    {FrameZone::Left, FrameZone::Client, FrameZone::Right},
    {FrameZone::BottomLeft, FrameZone::Bottom, FrameZone::BottomRight},
};

constexpr bool dragsLeft(FrameZone zone) noexcept
{
    return zone == FrameZone::Left || zone == FrameZone::TopLeft || zone == FrameZone::BottomLeft;
}

constexpr bool dragsTop(FrameZone zone) noexcept
{
    return zone == FrameZone::Top || zone == FrameZone::TopLeft || zone == FrameZone::TopRight;
}

// Moves `moving` so that it stands `minimum` away from the edge across, when the two are closer than that.
void keepApart(std::int32_t& near, std::int32_t& far, bool nearMoves, std::int32_t minimum) noexcept
{
    if (std::int64_t{far} - near >= minimum)
        return;
    if (nearMoves)
        near = static_cast<std::int32_t>(std::max<std::int64_t>(std::int64_t{far} - minimum, INT32_MIN));
    else
        far = static_cast<std::int32_t>(std::min<std::int64_t>(std::int64_t{near} + minimum, INT32_MAX));
}

std::int32_t centred(std::int32_t extent, std::int32_t areaStart, std::int32_t areaExtent) noexcept
{
    return areaStart + std::max(areaExtent - extent, 0) / 2;
}

Size atLeastOne(Size size) noexcept { return {std::max(size.width, 1), std::max(size.height, 1)}; }

Size smallerOf(Size a, Size b) noexcept { return {std::min(a.width, b.width), std::min(a.height, b.height)}; }

} // namespace

FrameZone frameZoneAt(Size client, Point cursor, std::int32_t border) noexcept
{
    const bool inside = cursor.x >= 0 && cursor.x < client.width && cursor.y >= 0 && cursor.y < client.height;
    if (!inside || border < 1)
        return FrameZone::Client;
    return kZones[bandOf(cursor.y, client.height, border)][bandOf(cursor.x, client.width, border)];
}

Edges clampedToMinimum(Edges proposed, FrameZone dragged, Size minimum) noexcept
{
    const Size smallest = atLeastOne(minimum);
    keepApart(proposed.left, proposed.right, dragsLeft(dragged), smallest.width);
    keepApart(proposed.top, proposed.bottom, dragsTop(dragged), smallest.height);
    return proposed;
}

Rect initialPlacement(Size window, const Rect& workArea) noexcept
{
    const Size size = atLeastOne(smallerOf(window, sizeOf(workArea)));
    return {centred(size.width, workArea.x, workArea.width),
            centred(size.height, workArea.y, workArea.height), size.width, size.height};
}

Rect movedInside(const Rect& window, const Rect& area) noexcept
{
    const Size size = atLeastOne(smallerOf(sizeOf(window), sizeOf(area)));
    const auto start = [](std::int32_t wanted, std::int32_t extent, std::int32_t from, std::int32_t room) {
        return std::clamp(wanted, from, from + std::max(room - extent, 0));
    };
    return {start(window.x, size.width, area.x, area.width),
            start(window.y, size.height, area.y, area.height), size.width, size.height};
}

Rect tooltipPlacement(Size size, Point pointer, std::int32_t below, std::int32_t above,
                      const Rect& area) noexcept
{
    const std::int32_t right = area.x + std::max(area.width - size.width, 0);
    const std::int32_t bottom = area.y + std::max(area.height - size.height, 0);
    std::int32_t y = pointer.y + below;
    if (y > bottom)
        y = pointer.y - above - size.height;
    return {std::clamp(pointer.x, area.x, right), std::clamp(y, area.y, bottom), size.width, size.height};
}

std::int32_t fittingDpi(Size design, Size room, std::int32_t monitorDpi) noexcept
{
    // Rounded down: the scaled length then never rounds up beyond the room.
    const auto fitting = [monitorDpi](std::int64_t length, std::int64_t available) {
        const bool fits = length <= 0 || length * monitorDpi <= available * kDesignDpi;
        return fits ? monitorDpi : available * kDesignDpi / length;
    };
    const std::int64_t dpi = std::min(fitting(design.width, room.width), fitting(design.height, room.height));
    return static_cast<std::int32_t>(std::max<std::int64_t>(dpi, std::min(kSmallestFittingDpi, monitorDpi)));
}

TrackingSizes trackingSizes(const Rect& monitor, const Rect& workArea, Size largest, Size minimum) noexcept
{
    const Size work = atLeastOne(sizeOf(workArea));
    return {work,
            {workArea.x - monitor.x, workArea.y - monitor.y},
            largerOf(largest, work),
            smallerOf(atLeastOne(minimum), work)};
}

} // namespace vela
