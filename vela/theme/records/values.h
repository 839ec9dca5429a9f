// The scalar values that skins write as text, beside the integers of vela/text.h. None of the readers throws,
// depends on the locale or overflows; all give nothing for text that is not such a value.
#pragma once

#include "vela/theme/color/color.h"
#include "vela/theme/records/surface_style.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vela {

// "#A47A45", "a47a45", or three decimals "164, 122, 69", each clamped to 0..255.
std::optional<Color> parseColor(std::wstring_view text) noexcept;

// An integer as leadingInteger reads it, clamped to 0..255.
std::optional<std::uint8_t> parseByte(std::wstring_view text) noexcept;

std::optional<bool> parseBoolean(std::wstring_view text) noexcept;

// A name ("semibold") or a number from 100 to 900.
std::optional<std::int32_t> parseWeight(std::wstring_view text) noexcept;

// Left, top, right and bottom, separated by commas.
std::optional<Insets> parseInsets(std::wstring_view text) noexcept;

// A palette role or a colour.
std::optional<ThemeColor> parseThemeColor(std::wstring_view text) noexcept;

// A list of roles and hex colours, separated by commas: their commas leave no room for decimal triples. Empty
// when an item is neither, so that half a palette is never painted.
std::optional<std::vector<ThemeColor>> parseThemeColors(std::wstring_view text);

} // namespace vela
