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

const SkinDefinition* findSkin(std::span<const SkinDefinition> skins, std::wstring_view id) noexcept
{
    const auto found = std::ranges::find_if(
        skins, [id](const SkinDefinition& skin) { return equalsIgnoringAsciiCase(skin.id, id); });
    return found != skins.end() ? &*found : nullptr;
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
    const SkinDefinition* const found = findSkin(skins_, resolveSkinId(requestedId, host_));
    return found ? *found : builtInSkin();
}

} // namespace vela
