// Integer device pixels. A size never has a negative component where the toolkit produces one.
#pragma once

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

// What both cover; the empty rectangle when they do not meet. In 64 bits, for an edge may lie outside 32.
constexpr Rect intersection(const Rect& a, const Rect& b) noexcept
{
    const auto larger = [](std::int64_t l, std::int64_t r) { return l > r ? l : r; };
    const auto smaller = [](std::int64_t l, std::int64_t r) { return l < r ? l : r; };
    const std::int64_t left = larger(a.x, b.x);
    const std::int64_t top = larger(a.y, b.y);
    const std::int64_t right = smaller(std::int64_t{a.x} + a.width, std::int64_t{b.x} + b.width);
    const std::int64_t bottom = smaller(std::int64_t{a.y} + a.height, std::int64_t{b.y} + b.height);
    if (right <= left || bottom <= top)
        return {};
    return {static_cast<std::int32_t>(left), static_cast<std::int32_t>(top),
            static_cast<std::int32_t>(right - left), static_cast<std::int32_t>(bottom - top)};
}

constexpr Rect movedBy(const Rect& rect, Point offset) noexcept
{
    return {rect.x + offset.x, rect.y + offset.y, rect.width, rect.height};
}

} // namespace vela
