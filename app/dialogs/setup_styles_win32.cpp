#include "app/dialogs/setup_styles.h"

#include "app/paths.h"
#include "app/setup_skins.h"

#include "vela/render/fonts.h"
#include "vela/render/surface_bitmaps.h"
#include "vela/theme/skin_host_win32.h"
#include "vela/theme/style_sections.h"

namespace setup {
namespace {

// A skin's fonts and bitmaps lie with it; the skins that the setup brings have neither.
const vela::SkinCatalog& preparedCatalog(SetupEffects& effects)
{
    static const vela::SkinCatalog& catalog = [&effects]() -> const vela::SkinCatalog& {
        const std::wstring own = userSkinFolder(effects);
        vela::setSkinFolders(prepareSkinFolders(effects));
        if (!own.empty())
            vela::setPrivateFontFolder(joinPath(own, L"fonts"));
        vela::setBitmapFolder(own);
        return vela::skinCatalog();
    }();
    return catalog;
}

} // namespace

vela::Window::StyleSource setupStyles(SetupEffects& effects)
{
    return [&effects] {
        static const vela::SkinDefinition* current = nullptr;
        static std::shared_ptr<const vela::StyleSheet> sheet;
        const vela::SkinDefinition& skin = preparedCatalog(effects).find(kSetupSkin);
        if (std::exchange(current, &skin) != &skin)
            sheet = std::make_shared<const vela::StyleSheet>(vela::buildStyleSheet(skin));
        return sheet;
    };
}

} // namespace setup
