// The setup with a window of its own.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// The process exit code.
int runInteractiveSetup(SetupEffects& effects);

} // namespace setup
