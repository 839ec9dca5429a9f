// What a silent run is to do: the command line completed by the state of the machine.
#pragma once

#include "app/cli/command_line.h"
#include "app/effects/setup_effects.h"
#include "app/run/install_request.h"

namespace setup {

struct RunRequest {
    bool quiet = false;
    bool restartApp = false;
    std::wstring waitPidText;
    InstallRequest install;
};

// A reinstall keeps the shortcuts as the user has them now; a first install turns the start with Windows on.
RunRequest readRunRequest(const CommandLine& commandLine, SetupEffects& effects);

// The same choice when nothing was asked for on the command line.
bool startsWithWindowsByDefault(SetupEffects& effects);
bool hasDesktopShortcut(FileEffects& files);

} // namespace setup
