// The looks of the setup's own windows: the automatic Windows 11 skin of the catalogue.
#pragma once

#include "app/effects/setup_effects.h"

#include "vela/controls/window/window.h"

namespace setup {

// The first use prepares the skin folders and reads the catalogue; a later one only looks whether the user
// has switched between light and dark, or to high contrast. Borrows the effects. UI thread only.
vela::Window::StyleSource setupStyles(SetupEffects& effects);

} // namespace setup
