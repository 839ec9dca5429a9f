#include "app/dialogs/setup_styles.h"

#include "app/dialogs/setup_skins.h"
#include "app/run/paths.h"

#include "vela/resource_folders.h"
#include "vela/theme/skins/system_skins.h"

namespace setup {
namespace {

// A skin's fonts and bitmaps lie with it; the skins that the setup brings have neither.
void prepareSkins(SetupEffects& effects)
{
    static const bool prepared = [&effects] {
        const std::wstring own = userSkinFolder(effects);
        vela::setResourceFolders({.skins = prepareSkinFolders(effects),
                                  .fonts = own.empty() ? std::wstring() : joinPath(own, L"fonts"),
                                  .bitmaps = own});
        return true;
    }();
    static_cast<void>(prepared);
}

} // namespace

vela::Window::StyleSource setupStyles(SetupEffects& effects)
{
    return [&effects] {
        prepareSkins(effects);
        return vela::systemStyles(kSetupSkin);
    };
}

} // namespace setup
