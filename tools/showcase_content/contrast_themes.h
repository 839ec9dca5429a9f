// The contrast themes that Windows 10 and 11 bring, four each: for pictures and tests of high-contrast mode
// on machines that are in none.
#pragma once

#include "vela/theme/derive/high_contrast.h"

#include <string_view>

namespace showcase {

struct ContrastTheme {
    std::wstring_view name;
    vela::SystemColors colors;
};

namespace detail {

constexpr vela::SystemColors contrastColors(std::uint32_t window, std::uint32_t windowText,
                                            std::uint32_t hotlight, std::uint32_t grayText,
                                            std::uint32_t highlight, std::uint32_t highlightText,
                                            std::uint32_t buttonFace, std::uint32_t buttonText)
{
    using vela::hexColor;
    return {hexColor(window),    hexColor(windowText),    hexColor(hotlight),   hexColor(grayText),
            hexColor(highlight), hexColor(highlightText), hexColor(buttonFace), hexColor(buttonText)};
}

} // namespace detail

inline constexpr ContrastTheme kContrastThemes[] = {
    // window, its text, links, disabled text, highlight, its text, buttons, their text
    {L"black",
     detail::contrastColors(0x000000, 0xFFFFFF, 0xFFFF00, 0x3FF23F, 0x1AEBFF, 0x000000, 0x000000, 0xFFFFFF)},
    {L"white",
     detail::contrastColors(0xFFFFFF, 0x000000, 0x00009F, 0x600000, 0x37006E, 0xFFFFFF, 0xFFFFFF, 0x000000)},
    {L"number-1",
     detail::contrastColors(0x000000, 0xFFFF00, 0x0000FF, 0x00FF00, 0x008000, 0xFFFFFF, 0x000000, 0xFFFF00)},
    {L"number-2",
     detail::contrastColors(0x000000, 0x00FF00, 0x8080FF, 0x00FFFF, 0x0000FF, 0xFFFFFF, 0x000000, 0x00FF00)},
    {L"aquatic",
     detail::contrastColors(0x202020, 0xFFFFFF, 0x75E9FC, 0xA6A6A6, 0x8EE3F0, 0x263B50, 0x202020, 0xFFFFFF)},
    {L"desert",
     detail::contrastColors(0xFFFAEF, 0x3D3D3D, 0x1C5E75, 0x676767, 0x903909, 0xFFF5E3, 0xFFFAEF, 0x202020)},
    {L"dusk",
     detail::contrastColors(0x2D3236, 0xFFFFFF, 0x70EBDE, 0xA6A6A6, 0xA1BFDE, 0x212D3B, 0x2D3236, 0xB6F6F0)},
    {L"night-sky",
     detail::contrastColors(0x000000, 0xFFFFFF, 0x8080FF, 0xA6A6A6, 0xD6B4FD, 0x2B2B2B, 0x000000, 0xFFEE32)},
};

} // namespace showcase
