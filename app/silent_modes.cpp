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

int runSilentInstall(SetupEffects& effects, NoticeScreen& screen, const RunOptions& options)
{
    waitForProcessExit(effects, processIdFrom(options.waitPidText), kWaitPidMilliseconds);
    const SetupActionResult result = resultOf([&] { return runInstall(effects, options.install); });
    if (!options.quiet)
        screen.showNotice(resultNotice(result, kInstallTexts));
    if (!result.success)
        return kExitInstallFailed;
    const bool started = !options.restartApp || launchInstalledApp(effects, options.install.installDir);
    return started ? kExitSuccess : kExitAppNotStarted;
}

int runSilentUninstall(SetupEffects& effects, NoticeScreen& screen, bool quiet)
{
    const SetupActionResult result = resultOf([&] { return runUninstall(effects); });
    if (!quiet)
        screen.showNotice(resultNotice(result, kUninstallTexts));
    return result.success ? kExitSuccess : kExitUninstallFailed;
}

void showAlreadyRunning(NoticeScreen& screen)
{
    screen.showNotice({L"Instalace uz bezi",
                       L"Tamber Setup uz pracuje v jinem okne. Pockej prosim na dokonceni prvni instalace; "
                       L"dalsi spusteni ted nic noveho nepusti.",
                       false});
}

} // namespace setup
