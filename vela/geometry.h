// Integer device pixels. A size never has a negative component where the toolkit produces one.
#pragma once

#include <algorithm>
#include <cstdint>

namespace vela {

struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend constexpr bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

constexpr bool isEmpty(Size size) noexcept { return size.width < 1 || size.height < 1; }
constexpr bool isEmpty(const Rect& rect) noexcept { return rect.width < 1 || rect.height < 1; }
constexpr Size sizeOf(const Rect& rect) noexcept { return {rect.width, rect.height}; }

// An edge may lie outside 32 bits: sums are made in 64, and what does not fit stops at the limits.
constexpr std::int32_t saturated(std::int64_t value) noexcept
{
    return static_cast<std::int32_t>(value < INT32_MIN ? INT32_MIN : value > INT32_MAX ? INT32_MAX : value);
}

// What both cover; the empty rectangle when they do not meet.
constexpr Rect intersection(const Rect& a, const Rect& b) noexcept
{
    const std::int64_t left = std::max(a.x, b.x);
    const std::int64_t top = std::max(a.y, b.y);
    const std::int64_t right = std::min(std::int64_t{a.x} + a.width, std::int64_t{b.x} + b.width);
    const std::int64_t bottom = std::min(std::int64_t{a.y} + a.height, std::int64_t{b.y} + b.height);
    if (right <= left || bottom <= top)
        return {};
    return {saturated(left), saturated(top), saturated(right - left), saturated(bottom - top)};
}

// The smallest rectangle around both.
constexpr Rect united(const Rect& a, const Rect& b) noexcept
{
    const std::int64_t left = std::min(a.x, b.x);
    const std::int64_t top = std::min(a.y, b.y);
    const std::int64_t right = std::max(std::int64_t{a.x} + a.width, std::int64_t{b.x} + b.width);
    const std::int64_t bottom = std::max(std::int64_t{a.y} + a.height, std::int64_t{b.y} + b.height);
    return {saturated(left), saturated(top), saturated(right - left), saturated(bottom - top)};
}

// The same for what has been found so far, which may be nothing: an empty rectangle.
constexpr Rect around(const Rect& found, const Rect& rect) noexcept
{
    return isEmpty(found) ? rect : united(found, rect);
}

constexpr Rect movedBy(const Rect& rect, Point offset) noexcept
{
    return {saturated(std::int64_t{rect.x} + offset.x), saturated(std::int64_t{rect.y} + offset.y),
            rect.width, rect.height};
}

// Larger by that much on every side.
constexpr Rect grownBy(const Rect& rect, std::int32_t reach) noexcept
{
    return {saturated(std::int64_t{rect.x} - reach), saturated(std::int64_t{rect.y} - reach),
            saturated(std::int64_t{rect.width} + 2 * std::int64_t{reach}),
            saturated(std::int64_t{rect.height} + 2 * std::int64_t{reach})};
}

// Calls visit for each side of the frame that the area is around an inner rectangle, which lies in it.
template <typename Visit>
constexpr void visitFrame(const Rect& area, const Rect& inner, Visit&& visit)
{
    const std::int32_t right = inner.x + inner.width;
    const std::int32_t bottom = inner.y + inner.height;
    for (const Rect& side : {Rect{area.x, area.y, area.width, inner.y - area.y},
                             Rect{area.x, inner.y, inner.x - area.x, inner.height},
                             Rect{right, inner.y, area.x + area.width - right, inner.height},
                             Rect{area.x, bottom, area.width, area.y + area.height - bottom}})
        if (!isEmpty(side))
            visit(side);
}

} // namespace vela
