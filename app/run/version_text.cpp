#include "app/run/version_text.h"

#include "vela/text.h"

#include <algorithm>

namespace setup {

std::wstring versionText(const ProductVersion& version)
{
    std::wstring text;
    for (const std::uint16_t part : version) {
        if (!text.empty())
            text += L'.';
        text += vela::decimalText(part);
    }
    return text;
}

std::wstring normalizeVersion(std::wstring_view text)
{
    std::wstring version(vela::trimmed(text));
    std::replace(version.begin(), version.end(), L',', L'.');
    while (std::count(version.begin(), version.end(), L'.') >= 3 && version.ends_with(L".0"))
        version.resize(version.size() - 2);
    return version;
}

} // namespace setup
