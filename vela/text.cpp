#include "vela/text.h"

#include <algorithm>
#include <limits>

namespace vela {
namespace {

// For integers of at most 32 bits.
template <typename Integer>
std::optional<Integer> leadingNumber(std::wstring_view text) noexcept
{
    using Limits = std::numeric_limits<Integer>;
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == L'-';
    if (!text.empty() && (negative || text.front() == L'+'))
        text.remove_prefix(1);
    if (text.empty() || !isDigit(text.front()))
        return std::nullopt;
    std::int64_t value = 0;
    for (const wchar_t c : text) {
        if (!isDigit(c))
            break;
        value = std::min<std::int64_t>(value * 10 + (c - L'0'), std::int64_t{Limits::max()} + 1);
    }
    value = negative ? -value : value;
    return static_cast<Integer>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

} // namespace

std::optional<std::uint32_t> hexDigit(wchar_t c) noexcept
{
    if (isDigit(c))
        return static_cast<std::uint32_t>(c - L'0');
    const wchar_t lower = lowerAscii(c);
    if (lower >= L'a' && lower <= L'f')
        return static_cast<std::uint32_t>(lower - L'a' + 10);
    return std::nullopt;
}

CodePoint codePointAt(std::wstring_view text, std::size_t index) noexcept
{
    const auto unit = static_cast<char32_t>(text[index]);
    if (isHighSurrogate(text[index]) && index + 1 < text.size() && isLowSurrogate(text[index + 1]))
        return {0x10000 + ((unit & 0x3FF) << 10) + (static_cast<char32_t>(text[index + 1]) & 0x3FF), 2};
    return {unit, 1};
}

std::wstring_view trimmed(std::wstring_view text) noexcept
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::wstring loweredAscii(std::wstring_view text)
{
    std::wstring result(text);
    std::transform(result.begin(), result.end(), result.begin(), lowerAscii);
    return result;
}

bool equalsIgnoringAsciiCase(std::wstring_view left, std::wstring_view right) noexcept
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](wchar_t a, wchar_t b) { return lowerAscii(a) == lowerAscii(b); });
}

std::optional<std::int32_t> leadingInteger(std::wstring_view text) noexcept
{
    return leadingNumber<std::int32_t>(text);
}

std::optional<std::uint32_t> leadingUnsigned(std::wstring_view text) noexcept
{
    return leadingNumber<std::uint32_t>(text);
}

std::wstring decimalText(std::uint64_t magnitude, bool negative)
{
    std::wstring digits;
    do {
        digits.insert(digits.begin(), static_cast<wchar_t>(L'0' + magnitude % 10));
        magnitude /= 10;
    } while (magnitude != 0);
    return negative ? L'-' + digits : digits;
}

} // namespace vela
