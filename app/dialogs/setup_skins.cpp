#include "app/dialogs/setup_skins.h"

#include "app/effects/step_log.h"
#include "app/run/paths.h"
#include "app/run/user_folders.h"

namespace setup {
namespace {

std::wstring setupSkinFolder(FileEffects& files) { return joinPath(userDataFolder(files), L"setup-skins"); }

} // namespace

std::wstring userSkinFolder(FileEffects& files)
{
    const std::wstring folder = files.programFolder();
    return folder.empty() ? std::wstring() : joinPath(folder, L"skins");
}

bool refreshSetupSkins(SetupEffects& effects)
{
    const std::wstring folder = setupSkinFolder(effects);
    WindowsError error = effects.createFolders(folder);
    if (error == kNoError)
        error = effects.writeSkins(joinPath(folder, L"00-vela-default-skins.json"));
    // A log of the setup's own is worth its file only when something went wrong before any run.
    return error == kNoError || noteStep(effects, L"write skins", error, folder);
}

std::vector<std::wstring> prepareSkinFolders(SetupEffects& effects)
{
    std::vector<std::wstring> folders;
    if (std::wstring own = userSkinFolder(effects); !own.empty())
        folders.push_back(std::move(own));
    if (refreshSetupSkins(effects))
        folders.push_back(setupSkinFolder(effects));
    return folders;
}

} // namespace setup
