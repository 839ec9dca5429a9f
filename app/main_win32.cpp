// Entry of TamberSetup.exe.
#include "app/exit_code.h"
#include "app/identity.h"
#include "app/instance_guard_win32.h"
#include "app/interactive_win32.h"
#include "app/process_win32.h"
#include "app/run_options.h"
#include "app/setup_effects_win32.h"
#include "app/silent_modes.h"

#include <windows.h>

// Drivers of machines with two GPUs look for these exports and then give the program the faster one.
extern "C" {
__declspec(dllexport) unsigned long NvOptimusEnablement = 1;
__declspec(dllexport) unsigned long AmdPowerXpressRequestHighPerformance = 1;
}

// What the C++ library would do with an exception that nobody catches: name its type, with a demangler and
// the C library's formatting, 70 KB in all. hardenProcess sets the handler that counts.
namespace __gnu_cxx {              // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
void __verbose_terminate_handler() // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
{
    ::TerminateProcess(::GetCurrentProcess(), setup::kExitInstallFailed);
}
} // namespace __gnu_cxx

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int)
{
    using namespace setup;
    hardenProcess();
    const CommandLine commandLine = parseCommandLine(processArguments());
    const SetupInstanceGuard guard(kMutexName.data());
    WindowsEffects effects(instance);
    if (guard.alreadyRunning()) {
        if (!commandLine.quiet)
            showAlreadyRunning(effects);
        return kExitSuccess;
    }
    const RunMode mode = runModeOf(commandLine);
    // Its user decides what the options would say, so the machine is not asked twice before the first window.
    if (mode == RunMode::Interactive)
        return runInteractiveSetup(instance, effects);
    const RunOptions options = readRunOptions(commandLine, effects);
    return mode == RunMode::Install ? runSilentInstall(effects, options)
                                    : runSilentUninstall(effects, options.quiet);
}
