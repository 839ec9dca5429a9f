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

} // namespace vela
