#include "app/dialogs/window_title.h"

#include "app/run/identity.h"

namespace setup {

std::wstring setupTitle(std::wstring_view requested)
{
    const std::wstring versionTitle = std::wstring(kProductName).append(L" - v").append(kVersionText);
    std::wstring ownTitle = versionTitle + L" Setup";
    if (requested.empty() || requested == L"Tamber Setup" || requested == ownTitle)
        return ownTitle;
    return std::wstring(requested).append(L" - ").append(versionTitle);
}

} // namespace setup
