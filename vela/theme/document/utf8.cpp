#include "vela/theme/document/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace vela {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// One row per length of a sequence, from two bytes on: its lead bytes, and the smallest code point that needs
// the length.
struct Form {
    std::uint8_t leadMask;
    std::uint8_t lead;
    char32_t smallest;
};

constexpr Form kForms[] = {
    {0xE0, 0xC0, 0x80},
    {0xF0, 0xE0, 0x800},
    {0xF8, 0xF0, 0x10000},
};

struct Character {
    char32_t codePoint;
    std::size_t length; // in bytes
};

bool isAscii(char byte) noexcept { return static_cast<std::uint8_t>(byte) < 0x80; }

// How many bytes at the front are ASCII.
std::size_t asciiRun(std::string_view bytes) noexcept
{
    std::size_t run = 0;
    // Eight at a time while they last: the bulk of reading a skin's bytes.
    for (std::uint64_t eight = 0; bytes.size() - run >= sizeof eight; run += sizeof eight) {
        std::memcpy(&eight, bytes.data() + run, sizeof eight);
        if ((eight & 0x8080808080808080) != 0)
            break;
    }
    while (run < bytes.size() && isAscii(bytes[run]))
        ++run;
    return run;
}

// The first character of bytes that do not begin with an ASCII one.
Character firstCharacter(std::string_view bytes) noexcept
{
    constexpr Character kBadByte = {kReplacement, 1};
    const auto byteAt = [&](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
    for (std::size_t row = 0; row < std::size(kForms); ++row) {
        const Form& form = kForms[row];
        const std::size_t length = row + 2;
        if ((byteAt(0) & form.leadMask) != form.lead)
            continue;
        if (bytes.size() < length)
            return kBadByte;
        char32_t codePoint = byteAt(0) & static_cast<std::uint8_t>(~form.leadMask);
        for (std::size_t at = 1; at < length; ++at) {
            if ((byteAt(at) & 0xC0) != 0x80)
                return kBadByte;
            codePoint = codePoint << 6 | (byteAt(at) & 0x3F);
        }
        const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
        return codePoint < form.smallest || codePoint > 0x10FFFF || surrogate ? kBadByte
                                                                              : Character{codePoint, length};
    }
    return kBadByte;
}

// Returns the place behind what it wrote.
wchar_t* write(wchar_t* out, char32_t codePoint) noexcept
{
    if (sizeof(wchar_t) > 2 || codePoint <= 0xFFFF) {
        *out++ = static_cast<wchar_t>(codePoint);
        return out;
    }
    *out++ = static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
    *out++ = static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF));
    return out;
}

} // namespace

std::wstring decodeUtf8(std::string_view bytes)
{
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    // No character has more units than bytes.
    std::wstring text(bytes.size(), L'\0');
    wchar_t* out = text.data();
    while (!bytes.empty()) {
        // Skins are ASCII but for a name here and there.
        const std::size_t run = asciiRun(bytes);
        out = std::copy_n(bytes.begin(), run, out);
        bytes.remove_prefix(run);
        if (bytes.empty())
            break;
        const Character character = firstCharacter(bytes);
        out = write(out, character.codePoint);
        bytes.remove_prefix(character.length);
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
    return text;
}

} // namespace vela
