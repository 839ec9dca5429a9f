#include "vela/text_clusters.h"

#include "vela/text.h"

#include <algorithm>
#include <cstdint>

namespace vela {

namespace {

constexpr char32_t kZeroWidthJoiner = 0x200D;

std::size_t codePointStart(std::wstring_view text, std::size_t index) noexcept
{
    const bool inPair =
        index > 0 && index < text.size() && isLowSurrogate(text[index]) && isHighSurrogate(text[index - 1]);
    return inPair ? index - 1 : index;
}

// Marks that are drawn on the character before them: combining marks of the scripts that European texts and
// file names meet, variation selectors, emoji skin tones, tags.
constexpr struct {
    char32_t first;
    char32_t last;
} kExtendingRanges[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD},   {0x064B, 0x065F},   {0x0E34, 0x0E3A},
    {0x0E47, 0x0E4E}, {0x0900, 0x0903}, {0x093A, 0x093C},   {0x093E, 0x094F},   {0x1AB0, 0x1AFF},
    {0x1DC0, 0x1DFF}, {0x200C, 0x200D}, {0x20D0, 0x20FF},   {0x302A, 0x302F},   {0x3099, 0x309A},
    {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}, {0xE0020, 0xE007F}, {0xE0100, 0xE01EF},
};

bool extendsPrevious(char32_t value) noexcept
{
    return std::any_of(std::begin(kExtendingRanges), std::end(kExtendingRanges),
                       [value](const auto& range) { return value >= range.first && value <= range.last; });
}

bool isCaretStop(std::wstring_view text, std::size_t index) noexcept
{
    if (index == 0 || index >= text.size())
        return true;
    if (codePointStart(text, index) != index)
        return false;
    if (extendsPrevious(codePointAt(text, index).value))
        return false;
    // A joiner also holds on to what follows it, as in a family emoji.
    return static_cast<char32_t>(text[index - 1]) != kZeroWidthJoiner;
}

enum class CharacterClass { Space, Word, Punctuation };

CharacterClass classOf(wchar_t c) noexcept
{
    if (isSpace(c) || c == L'\u00A0')
        return CharacterClass::Space;
    const bool word = isDigit(c) || c == L'_' || (lowerAscii(c) >= L'a' && lowerAscii(c) <= L'z') ||
                      static_cast<char32_t>(c) >= 0xC0;
    return word ? CharacterClass::Word : CharacterClass::Punctuation;
}

} // namespace

std::size_t nextCaretStop(std::wstring_view text, std::size_t index) noexcept
{
    index = std::min(index, text.size());
    while (index < text.size() && !isCaretStop(text, ++index)) {
    }
    return index;
}

std::size_t previousCaretStop(std::wstring_view text, std::size_t index) noexcept
{
    index = std::min(index, text.size());
    while (index > 0 && !isCaretStop(text, --index)) {
    }
    return index;
}

std::size_t nearestCaretStop(std::wstring_view text, std::size_t index) noexcept
{
    index = std::min(index, text.size());
    return isCaretStop(text, index) ? index : previousCaretStop(text, index);
}

std::size_t nextWordStart(std::wstring_view text, std::size_t index) noexcept
{
    index = std::min(index, text.size());
    if (index == text.size())
        return index;
    const CharacterClass start = classOf(text[index]);
    while (index < text.size() && classOf(text[index]) == start && start != CharacterClass::Space)
        index = nextCaretStop(text, index);
    while (index < text.size() && classOf(text[index]) == CharacterClass::Space)
        index = nextCaretStop(text, index);
    return index;
}

std::size_t previousWordStart(std::wstring_view text, std::size_t index) noexcept
{
    index = std::min(index, text.size());
    while (index > 0 && classOf(text[index - 1]) == CharacterClass::Space)
        --index;
    if (index == 0)
        return 0;
    const auto classBefore = [text](std::size_t at) { return classOf(text[previousCaretStop(text, at)]); };
    const CharacterClass end = classBefore(index);
    while (index > 0 && classBefore(index) == end)
        index = previousCaretStop(text, index);
    return index;
}

std::pair<std::size_t, std::size_t> wordAround(std::wstring_view text, std::size_t index) noexcept
{
    if (text.empty())
        return {0, 0};
    // A click behind the last character means that character.
    std::size_t first = nearestCaretStop(text, std::min(index, text.size() - 1));
    const CharacterClass middle = classOf(text[first]);
    std::size_t last = nextCaretStop(text, first);
    while (first > 0 && classOf(text[previousCaretStop(text, first)]) == middle)
        first = previousCaretStop(text, first);
    while (last < text.size() && classOf(text[last]) == middle)
        last = nextCaretStop(text, last);
    return {first, last};
}

} // namespace vela
