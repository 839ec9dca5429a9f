#include "tools/showcase/arguments.h"

#include "vela/text.h"
#include "vela/theme/skins/skin_files.h"

#include <algorithm>

namespace showcase {

namespace {

bool setOnce(std::wstring& place, std::wstring_view word)
{
    if (!place.empty())
        return false;
    place = word;
    return true;
}

bool setDpi(std::int32_t& place, std::wstring_view word)
{
    const std::int32_t dpi = vela::leadingInteger(word).value_or(0);
    if (place != 0 || dpi < kSmallestDpi || dpi > kLargestDpi)
        return false;
    place = dpi;
    return true;
}

} // namespace

std::optional<Arguments> parseArguments(std::span<const std::wstring_view> words)
{
    Arguments arguments;
    for (const std::wstring_view word : words) {
        const bool number = !word.empty() && std::all_of(word.begin(), word.end(), vela::isDigit);
        const bool known = word.empty() || word.front() == L'-' ? false
                           : number                             ? setDpi(arguments.dpi, word)
                           : vela::isSkinFileName(word)         ? setOnce(arguments.file, word)
                                                                : setOnce(arguments.skinId, word);
        if (!known)
            return std::nullopt;
    }
    return arguments;
}

} // namespace showcase
