// What the process tells its caller when it ends.
#pragma once

namespace setup {

enum ExitCode : int {
    kExitSuccess = 0, // also when another setup is at work
    kExitInstallFailed = 4,
    kExitUninstallFailed = 5,
    kExitAppNotStarted = 6, // installed, but "--restart-app" could not start the application
};

} // namespace setup
