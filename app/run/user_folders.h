// Where the current user's shortcuts and data lie.
#pragma once

#include "app/effects/file_effects.h"

namespace setup {

std::wstring startupShortcutPath(FileEffects& files);
std::wstring desktopShortcutPath(FileEffects& files);
std::wstring userDataFolder(FileEffects& files);

} // namespace setup
