// The setup with windows of its own, in the place of the silent modes.
#pragma once

#include "app/setup_effects.h"

#include "vela/platform_handles.h"

namespace setup {

// The process exit code. The module carries the windows' icon.
int runInteractiveSetup(HINSTANCE module, SetupEffects& effects);

} // namespace setup
