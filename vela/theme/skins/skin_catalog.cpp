#include "vela/theme/skins/skin_catalog.h"

#include "vela/text.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vela {

namespace {

constexpr std::wstring_view kAutomaticIds[] = {L"win11-auto", L"windows-11-auto", L"windows11-auto"};
constexpr std::wstring_view kLightId = L"win11-light";
constexpr std::wstring_view kDarkId = L"win11-dark";

} // namespace

std::wstring resolveSkinId(std::wstring_view requestedId, SkinHost& host)
{
    std::wstring id = loweredAscii(requestedId);
    if (std::find(std::begin(kAutomaticIds), std::end(kAutomaticIds), id) == std::end(kAutomaticIds))
        return id;
    return std::wstring(host.appsUseLightTheme() == 0U ? kDarkId : kLightId);
}

const SkinDefinition& builtInSkin()
{
    static const SkinDefinition skin;
    return skin;
}

StyleSheet styleSheetFor(const SkinDefinition& skin, SkinHost& host)
{
    StyleSheet sheet = buildStyleSheet(skin);
    if (const std::optional<SystemColors> colors = host.highContrastColors())
        applyHighContrast(sheet, *colors);
    return sheet;
}

SkinCatalog::SkinCatalog(SkinHost& host, std::span<const std::wstring> folders) : host_(host)
{
    for (const std::wstring& folder : folders) {
        std::vector<SkinDefinition> found = loadSkinsFromFolder(host, folder);
        skins_.insert(skins_.end(), std::make_move_iterator(found.begin()),
                      std::make_move_iterator(found.end()));
    }
}

const SkinDefinition& SkinCatalog::find(std::wstring_view requestedId) const
{
    return findUnresolved(resolveSkinId(requestedId, host_));
}

const SkinDefinition& SkinCatalog::findUnresolved(std::wstring_view id) const
{
    const auto found = std::find_if(skins_.begin(), skins_.end(), [&](const SkinDefinition& skin) {
        return equalsIgnoringAsciiCase(skin.id, id);
    });
    return found != skins_.end() ? *found : builtInSkin();
}

} // namespace vela
