// The unattended modes, for scripts and the application's own updater: one run, a notice unless the caller
// wants none, and an exit code.
#pragma once

#include "app/cli/notice.h"
#include "app/cli/requests.h"

namespace setup {

int runSilentInstall(SetupEffects& effects, NoticeScreen& screen, const RunRequest& request);
int runSilentUninstall(SetupEffects& effects, NoticeScreen& screen, bool quiet);

// Tells the user that another setup is at work.
void showAlreadyRunning(NoticeScreen& screen);

} // namespace setup
