#include "app/silent_modes.h"

#include "app/exit_code.h"
#include "app/installed_app.h"
#include "app/result_notice.h"
#include "app/running_app.h"

namespace setup {
namespace {

constexpr std::uint32_t kWaitPidMilliseconds = 8000;

constexpr ResultTexts kInstallTexts{kInstalledTitle, kInstallFailedTitle, L"Tamber byl nainstalovan."};
constexpr ResultTexts kUninstallTexts{kUninstalledTitle, kUninstallFailedTitle, kUninstalledText};

} // namespace

int runSilentInstall(SetupEffects& effects, const RunOptions& options)
{
    waitForProcessExit(effects, processIdFrom(options.waitPidText), kWaitPidMilliseconds);
    const SetupActionResult result = resultOf([&] { return runInstall(effects, options.install); });
    if (!options.quiet)
        effects.showNotice(resultNotice(result, kInstallTexts));
    if (!result.success)
        return kExitInstallFailed;
    const bool started = !options.restartApp || launchInstalledApp(effects, options.install.installDir);
    return started ? kExitSuccess : kExitAppNotStarted;
}

int runSilentUninstall(SetupEffects& effects, bool quiet)
{
    const SetupActionResult result = resultOf([&] { return runUninstall(effects); });
    if (!quiet)
        effects.showNotice(resultNotice(result, kUninstallTexts));
    return result.success ? kExitSuccess : kExitUninstallFailed;
}

void showAlreadyRunning(SetupEffects& effects)
{
    effects.showNotice({L"Instalace uz bezi",
                        L"Tamber Setup uz pracuje v jinem okne. Pockej prosim na dokonceni prvni instalace; "
                        L"dalsi spusteni ted nic noveho nepusti.",
                        false});
}

} // namespace setup
