// The user's Startup and desktop shortcuts to the application.
#pragma once

#include "app/effects/setup_effects.h"

namespace setup {

// Creates or removes both shortcuts; false with the sentence for the user at the first that could not be set.
bool configureShortcuts(SetupEffects& effects, const std::wstring& installDir, bool startWithWindows,
                        bool desktopShortcut, std::wstring& message);

// Deletes both after the product is gone. One that cannot be deleted is left where it is.
void removeShortcuts(SetupEffects& effects);

} // namespace setup
