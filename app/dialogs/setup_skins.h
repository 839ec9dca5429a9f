// Where the setup's skins lie.
#pragma once

#include "app/effects/setup_effects.h"

namespace setup {

// The skin that the setup's windows ask the catalogue for.
inline constexpr std::wstring_view kSetupSkin = L"win11-auto";

// Beside the program: what the user put there wins over what the program brings. Empty when Windows does not
// tell where the program lies.
std::wstring userSkinFolder(FileEffects& files);

// Writes the document this program carries into the setup's own folder, so that it replaces that of an older
// setup. False when it could not be written.
bool refreshSetupSkins(SetupEffects& effects);

// In the catalogue's order. Refreshes the setup's own folder, and leaves it out when that fails.
std::vector<std::wstring> prepareSkinFolders(SetupEffects& effects);

} // namespace setup
