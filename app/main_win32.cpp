// Entry of TamberSetup.exe.
#include "app/cli/requests.h"
#include "app/cli/silent_modes.h"
#include "app/dialogs/toolkit_texts.h"
#include "app/run/exit_code.h"
#include "app/run/identity.h"
#include "app/screens_win32.h"
#include "app/windows/instance_guard_win32.h"
#include "app/windows/process_win32.h"
#include "app/windows/setup_effects_win32.h"

#include <windows.h>

// Drivers of machines with two GPUs look for these exports and then give the program the faster one.
extern "C" {
__declspec(dllexport) unsigned long NvOptimusEnablement = 1;
__declspec(dllexport) unsigned long AmdPowerXpressRequestHighPerformance = 1;
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int)
{
    using namespace setup;
    hardenProcess();
    vela::setToolkitTexts(kToolkitTexts);
    const CommandLine commandLine = parseCommandLine(processArguments());
    const SetupInstanceGuard guard(kMutexName.data());
    WindowsEffects effects(instance);
    WindowScreens screens(instance, effects);
    if (guard.alreadyRunning()) {
        if (!commandLine.quiet)
            showAlreadyRunning(screens);
        return kExitSuccess;
    }
    const RunMode mode = runModeOf(commandLine);
    // Its user decides what the options would say, so the machine is not asked twice before the first window.
    if (mode == RunMode::Interactive)
        return runInteractiveSetup(effects, screens);
    const RunRequest request = readRunRequest(commandLine, effects);
    return mode == RunMode::Install ? runSilentInstall(effects, screens, request)
                                    : runSilentUninstall(effects, screens, request.quiet);
}
