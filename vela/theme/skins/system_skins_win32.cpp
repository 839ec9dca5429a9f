#include "vela/theme/skins/system_skins.h"

#include "vela/resource_folders.h"
#include "vela/theme/skins/skin_host_win32.h"

#include <optional>
#include <utility>

namespace vela {

SkinHost& systemSkinHost()
{
    static WindowsSkinHost host;
    return host;
}

const SkinCatalog& skinCatalog()
{
    static const SkinCatalog catalog(systemSkinHost(), resourceFolders().skins);
    return catalog;
}

std::shared_ptr<const StyleSheet> systemStyles(std::wstring_view requestedId)
{
    static const SkinDefinition* skin = nullptr;
    static std::optional<SystemColors> colors;
    static std::shared_ptr<const StyleSheet> sheet;
    const SkinDefinition& wanted = skinCatalog().find(requestedId);
    const std::optional<SystemColors> contrast = systemSkinHost().highContrastColors();
    const bool sameSkin = std::exchange(skin, &wanted) == &wanted;
    if (std::exchange(colors, contrast) != contrast || !sameSkin)
        sheet = std::make_shared<const StyleSheet>(styleSheetFor(wanted, systemSkinHost()));
    return sheet;
}

} // namespace vela
