// Where the current user's shortcuts and data lie.
#pragma once

#include "app/setup_effects.h"

namespace setup {

std::wstring startupShortcutPath(SetupEffects& effects);
std::wstring desktopShortcutPath(SetupEffects& effects);
std::wstring userDataFolder(SetupEffects& effects);

} // namespace setup
