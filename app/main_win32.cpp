// Entry of TamberSetup.exe.
#include "app/exit_code.h"
#include "app/instance_guard_win32.h"
#include "app/options.h"
#include "app/process_win32.h"

#include <windows.h>

// Drivers of machines with two GPUs look for these exports and then give the program the faster one.
extern "C" {
__declspec(dllexport) unsigned long NvOptimusEnablement = 1;
__declspec(dllexport) unsigned long AmdPowerXpressRequestHighPerformance = 1;
}

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    setup::hardenProcess();
    const setup::CommandLine commandLine = setup::parseCommandLine(setup::processArguments());
    const setup::SetupInstanceGuard guard;
    if (guard.alreadyRunning())
        return setup::kExitSuccess;
    static_cast<void>(commandLine);
    return setup::kExitSuccess;
}
