// A colour without alpha, stored as Windows' COLORREF: red in the low byte, then green, then blue. Opacities
// are bytes of their own beside it.
#pragma once

#include <cstdint>

namespace vela {

using Color = std::uint32_t;

constexpr Color rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept
{
    return red | static_cast<Color>(green) << 8 | static_cast<Color>(blue) << 16;
}

// Spelled as skins spell it: 0xRRGGBB.
constexpr Color hexColor(std::uint32_t rrggbb) noexcept
{
    return (rrggbb >> 16 & 0xFF) | (rrggbb & 0xFF00) | (rrggbb & 0xFF) << 16;
}

constexpr std::uint8_t redOf(Color color) noexcept { return static_cast<std::uint8_t>(color & 0xFF); }
constexpr std::uint8_t greenOf(Color color) noexcept { return static_cast<std::uint8_t>(color >> 8 & 0xFF); }
constexpr std::uint8_t blueOf(Color color) noexcept { return static_cast<std::uint8_t>(color >> 16 & 0xFF); }

} // namespace vela
