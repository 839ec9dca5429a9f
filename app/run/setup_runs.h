// The two runs that change the machine. Each goes through its steps in order and ends at the first that
// fails; nothing is retried. Until the installer has returned 0, nothing is changed but the setup's own
// temporary files, and a running application is asked to close.
#pragma once

#include "app/effects/setup_effects.h"
#include "app/run/action_result.h"
#include "app/run/install_request.h"

namespace setup {

// Hands the embedded package to the Windows Installer and finishes the install.
SetupActionResult runInstall(SetupEffects& effects, const InstallRequest& request);

// Removes every product of the upgrade code. With none installed it succeeds and touches nothing.
SetupActionResult runUninstall(SetupEffects& effects);

} // namespace setup
