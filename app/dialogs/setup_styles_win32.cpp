#include "app/dialogs/setup_styles.h"

#include "app/dialogs/setup_skins.h"
#include "app/run/paths.h"

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/text/fonts.h"
#include "vela/theme/skins/system_skins.h"

namespace setup {
namespace {

// A skin's fonts and bitmaps lie with it; the skins that the setup brings have neither.
void prepareSkins(SetupEffects& effects)
{
    static const bool prepared = [&effects] {
        const std::wstring own = userSkinFolder(effects);
        vela::setSkinFolders(prepareSkinFolders(effects));
        if (!own.empty())
            vela::setPrivateFontFolder(joinPath(own, L"fonts"));
        vela::setBitmapFolder(own);
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
