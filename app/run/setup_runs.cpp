#include "app/run/setup_runs.h"

#include "app/effects/step_log.h"
#include "app/run/embedded_package.h"
#include "app/run/identity.h"
#include "app/run/installed_app.h"
#include "app/run/installer_command.h"
#include "app/run/paths.h"
#include "app/run/products.h"
#include "app/run/running_app.h"
#include "app/run/shortcuts.h"
#include "app/run/temp_file.h"

#include "vela/text.h"

namespace setup {
namespace {

constexpr std::wstring_view kSetupNotCopied =
    L"MSI probehlo, ale setup nedokazal zkopirovat TamberSetup.exe do instalacni slozky.";

SetupActionResult beginRun(SetupEffects& effects, std::wstring_view phase)
{
    SetupActionResult result;
    result.phase = phase;
    result.logPath = tempSetupFile(effects, std::wstring(phase).append(L".log"));
    return result;
}

bool runInstaller(SetupEffects& effects, const std::wstring& parameters, SetupActionResult& result)
{
    const InstallerExit exit = effects.runInstaller(parameters);
    result.exitCode = exit.code;
    const bool succeeded = exit.finished && exit.code == 0;
    const WindowsError error = exit.finished || exit.code != 0 ? exit.code : kErrorGenFailure;
    noteStep(effects, exit.finished ? L"run installer" : L"start installer", error, parameters);
    if (!succeeded)
        result.message = describeInstallerExitCode(exit.code);
    return succeeded;
}

bool copySetupInto(SetupEffects& effects, const std::wstring& folder, std::wstring& message)
{
    if (noteStep(effects, L"create install folder", effects.createFolders(folder), folder) &&
        noteStep(effects, L"copy setup", effects.copySetup(joinPath(folder, kSetupFile))))
        return true;
    message = kSetupNotCopied;
    return false;
}

void notifyShell(SetupEffects& effects)
{
    effects.notifyShellChanged();
    noteStep(effects, L"notify shell", kNoError);
}

bool integrate(SetupEffects& effects, const std::wstring& folder, const InstallRequest& request,
               std::wstring& message)
{
    if (!copySetupInto(effects, folder, message) ||
        !configureShortcuts(effects, folder, request.startWithWindows, request.desktopShortcut, message))
        return false;
    notifyShell(effects);
    const std::wstring exePath = joinPath(folder, kApplicationFile);
    if (!verifyInstalledVersion(effects, exePath, message))
        return false;
    startInBackground(effects, exePath);
    return true;
}

} // namespace

SetupActionResult runInstall(SetupEffects& effects, const InstallRequest& request)
{
    SetupActionResult result = beginRun(effects, L"install");
    const std::wstring package = tempSetupFile(effects, L"Tamber.msi");
    std::unique_ptr<PackagePin> pin = preparePackage(effects, package, result.message);
    if (!pin)
        return result;
    closeRunningApp(effects);
    const std::wstring folder = normalizeInstallFolder(request.installDir);
    if (!runInstaller(effects, installParameters(package, folder, result.logPath), result))
        return result;
    pin.reset();
    result.success = integrate(effects, folder, request, result.message);
    return result;
}

SetupActionResult runUninstall(SetupEffects& effects)
{
    SetupActionResult result = beginRun(effects, L"uninstall");
    const std::vector<std::wstring> codes = relatedProductCodes(effects);
    noteStep(effects, L"find installed products", kNoError,
             vela::decimalText(static_cast<std::uint32_t>(codes.size())));
    if (codes.empty()) {
        result.success = true;
        return result;
    }
    closeRunningApp(effects);
    for (const std::wstring& code : codes) {
        if (!runInstaller(effects, uninstallParameters(code, result.logPath), result))
            return result;
    }
    removeShortcuts(effects);
    notifyShell(effects);
    result.success = true;
    return result;
}

} // namespace setup
