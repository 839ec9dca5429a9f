// What this run is to do: the command line completed by the state of the machine.
#pragma once

#include "app/options.h"
#include "app/setup_runs.h"

namespace setup {

struct RunOptions {
    bool quiet = false;
    bool restartApp = false;
    std::wstring waitPidText;
    InstallRequest install;
};

// A reinstall keeps the shortcuts as the user has them now; a first install turns the start with Windows on.
RunOptions readRunOptions(const CommandLine& commandLine, SetupEffects& effects);

// The same choice when nothing was asked for on the command line.
bool startsWithWindowsByDefault(SetupEffects& effects);
bool hasDesktopShortcut(FileEffects& files);

} // namespace setup
