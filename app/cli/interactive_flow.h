// The order of an interactive run: choice, progress, notice, and the application after a success.
#pragma once

#include "app/cli/setup_screens.h"
#include "app/effects/setup_effects.h"

namespace setup {

// As the machine is now: a reinstall keeps the shortcuts the user has, a first install starts with Windows.
ChoiceState initialChoice(SetupEffects& effects);

// The process exit code.
int runInteractiveFlow(SetupEffects& effects, SetupScreens& screens);

} // namespace setup
