#include "app/cli/silent_modes.h"

#include "app/cli/action_texts.h"
#include "app/run/installed_app.h"
#include "app/run/running_app.h"
#include "app/run/setup_runs.h"

namespace setup {
namespace {

constexpr std::uint32_t kWaitPidMilliseconds = 8000;

} // namespace

int runSilentInstall(SetupEffects& effects, NoticeScreen& screen, const RunRequest& request)
{
    waitForProcessExit(effects, processIdFrom(request.waitPidText), kWaitPidMilliseconds);
    const SetupActionResult result = resultOf([&] { return runInstall(effects, request.install); });
    if (!request.quiet)
        screen.showNotice(resultNotice(result, kSilentInstallTexts));
    if (!result.success)
        return kExitInstallFailed;
    const bool started = !request.restartApp || launchInstalledApp(effects, request.install.installDir);
    return started ? kExitSuccess : kExitAppNotStarted;
}

int runSilentUninstall(SetupEffects& effects, NoticeScreen& screen, bool quiet)
{
    const SetupActionResult result = resultOf([&] { return runUninstall(effects); });
    if (!quiet)
        screen.showNotice(resultNotice(result, kSilentUninstallTexts));
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
