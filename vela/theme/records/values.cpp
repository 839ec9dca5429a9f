#include "vela/theme/records/values.h"

#include "vela/text.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/records/theme.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

namespace vela {
namespace {

std::optional<Color> parseHexColor(std::wstring_view text) noexcept
{
    constexpr std::size_t kDigits = 6;
    if (!text.empty() && text.front() == L'#')
        text.remove_prefix(1);
    if (text.size() != kDigits)
        return std::nullopt;
    std::uint32_t value = 0;
    for (const wchar_t c : text) {
        const std::optional<std::uint32_t> digit = hexDigit(c);
        if (!digit)
            return std::nullopt;
        value = value << 4 | *digit;
    }
    return hexColor(value);
}

std::wstring_view takeListItem(std::wstring_view& list) noexcept
{
    const std::size_t comma = list.find(L',');
    const std::wstring_view item = trimmed(list.substr(0, comma));
    list.remove_prefix(comma == std::wstring_view::npos ? list.size() : comma + 1);
    return item;
}

// Exactly as many comma-separated integers as the array holds.
template <std::size_t kCount>
std::optional<std::array<std::int32_t, kCount>> parseIntegers(std::wstring_view text) noexcept
{
    if (std::count(text.begin(), text.end(), L',') != static_cast<std::ptrdiff_t>(kCount - 1))
        return std::nullopt;
    std::array<std::int32_t, kCount> values{};
    for (std::int32_t& value : values) {
        const std::optional<std::int32_t> item = leadingInteger(takeListItem(text));
        if (!item)
            return std::nullopt;
        value = *item;
    }
    return values;
}

std::uint8_t clampedByte(std::int32_t value) noexcept
{
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

} // namespace

std::optional<Color> parseColor(std::wstring_view text) noexcept
{
    text = trimmed(text);
    if (const std::optional<Color> color = parseHexColor(text))
        return color;
    const auto parts = parseIntegers<3>(text);
    if (!parts)
        return std::nullopt;
    return rgb(clampedByte((*parts)[0]), clampedByte((*parts)[1]), clampedByte((*parts)[2]));
}

std::optional<std::uint8_t> parseByte(std::wstring_view text) noexcept
{
    const std::optional<std::int32_t> value = leadingInteger(text);
    return value ? std::optional(clampedByte(*value)) : std::nullopt;
}

std::optional<bool> parseBoolean(std::wstring_view text) noexcept
{
    // Stricter than names are: "t-rue" is no boolean.
    text = trimmed(text);
    const bool isWord = std::all_of(text.begin(), text.end(),
                                    [](wchar_t c) { return lowerAscii(c) >= L'a' && lowerAscii(c) <= L'z'; });
    const std::optional<std::uint16_t> value = isWord ? parseWord(kBooleanWords, text) : std::nullopt;
    return value ? std::optional(*value != 0) : std::nullopt;
}

std::optional<std::int32_t> parseWeight(std::wstring_view text) noexcept
{
    if (const std::optional<std::uint16_t> named = parseWord(kWeightWords, text))
        return *named;
    const std::optional<std::int32_t> number = leadingInteger(text);
    return number && *number >= kMinFontWeight && *number <= kMaxFontWeight ? number : std::nullopt;
}

std::optional<Insets> parseInsets(std::wstring_view text) noexcept
{
    const auto sides = parseIntegers<4>(text);
    if (!sides)
        return std::nullopt;
    return Insets{(*sides)[0], (*sides)[1], (*sides)[2], (*sides)[3]};
}

std::optional<ThemeColor> parseThemeColor(std::wstring_view text) noexcept
{
    if (const std::optional<PaletteRole> role = parseWord<PaletteRole>(text))
        return ThemeColor{ThemeColor{}.color, role};
    const std::optional<Color> color = parseColor(text);
    return color ? std::optional(ThemeColor{*color, {}}) : std::nullopt;
}

std::optional<std::vector<ThemeColor>> parseThemeColors(std::wstring_view text)
{
    std::vector<ThemeColor> colors;
    while (!text.empty()) {
        const std::optional<ThemeColor> color = parseThemeColor(takeListItem(text));
        if (!color)
            return std::nullopt;
        colors.push_back(*color);
    }
    return colors;
}

} // namespace vela
