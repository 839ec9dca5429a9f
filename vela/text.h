// Small helpers on wide text, independent of the locale: only ASCII letters change case, and white space is
// space, tab, CR, LF, FF and VT. A unit is 16 bits on Windows and 32 elsewhere; nothing here depends on
// which.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vela {

constexpr bool isSpace(wchar_t c) noexcept { return c == L' ' || (c >= L'\t' && c <= L'\r'); }
constexpr bool isDigit(wchar_t c) noexcept { return c >= L'0' && c <= L'9'; }
constexpr wchar_t lowerAscii(wchar_t c) noexcept
{
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

// The value of a hexadecimal digit in either case.
std::optional<std::uint32_t> hexDigit(wchar_t c) noexcept;

// The halves of a character that takes two units of 16 bits, as on Windows.
constexpr bool isHighSurrogate(wchar_t unit) noexcept
{
    return (static_cast<std::uint32_t>(unit) & ~0x3FFU) == 0xD800;
}
constexpr bool isLowSurrogate(wchar_t unit) noexcept
{
    return (static_cast<std::uint32_t>(unit) & ~0x3FFU) == 0xDC00;
}

struct CodePoint {
    char32_t value;
    std::size_t units;
};

// What begins at the index, which lies within the text; half a pair without the other is itself.
CodePoint codePointAt(std::wstring_view text, std::size_t index) noexcept;

// The part of the text between the first and the last character that is not white space.
std::wstring_view trimmed(std::wstring_view text) noexcept;

std::wstring loweredAscii(std::wstring_view text);

bool equalsIgnoringAsciiCase(std::wstring_view left, std::wstring_view right) noexcept;

// Reads white space, a sign and decimal digits from the front, ignores what follows, and stops at the limits
// of the type instead of overflowing. Empty when no digit was found.
std::optional<std::int32_t> leadingInteger(std::wstring_view text) noexcept;
std::optional<std::uint32_t> leadingUnsigned(std::wstring_view text) noexcept;

std::wstring decimalText(std::uint64_t magnitude, bool negative);

// Any whole number, without the C library's formatting behind std::to_wstring.
template <std::integral Number>
std::wstring decimalText(Number value)
{
    const auto bits = static_cast<std::uint64_t>(value);
    return value < 0 ? decimalText(~bits + 1, true) : decimalText(bits, false);
}

} // namespace vela
