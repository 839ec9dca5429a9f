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

constexpr const wchar_t* kSetupNotCopied =
    L"MSI probehlo, ale setup nedokazal zkopirovat TamberSetup.exe do instalacni slozky.";

// A step after the installer's success.
using SentenceOnFailure = vela::Outcome<vela::Done, std::wstring>;

SetupActionResult beginRun(SetupEffects& effects, std::wstring_view phase)
{
    SetupActionResult result;
    result.phase = phase;
    result.logPath = tempSetupFile(effects, std::wstring(phase).append(L".log"));
    return result;
}

bool runInstaller(SetupEffects& effects, const std::wstring& parameters, SetupActionResult& result)
{
    const WindowsOutcome<std::uint32_t> exit = effects.runInstaller(parameters);
    result.exitCode = exit ? exit.value() : exit.error();
    const bool succeeded = noteStep(effects, exit ? L"run installer" : L"start installer",
                                    exit ? exit.value() : errorOf(exit), parameters);
    if (!succeeded)
        result.message = describeInstallerExitCode(result.exitCode);
    return succeeded;
}

SentenceOnFailure copySetupInto(SetupEffects& effects, const std::wstring& folder)
{
    if (noteStep(effects, L"create install folder", effects.createFolders(folder), folder) &&
        noteStep(effects, L"copy setup", effects.copySetup(joinPath(folder, kSetupFile))))
        return vela::Done{};
    return vela::Failure{kSetupNotCopied};
}

void notifyShell(SetupEffects& effects)
{
    effects.notifyShellChanged();
    noteStep(effects, L"notify shell", kNoError);
}

SentenceOnFailure integrate(SetupEffects& effects, const std::wstring& folder, const InstallRequest& request)
{
    if (SentenceOnFailure copied = copySetupInto(effects, folder); !copied)
        return copied;
    std::wstring message;
    if (!configureShortcuts(effects, folder, request.startWithWindows, request.desktopShortcut, message))
        return vela::Failure{std::move(message)};
    notifyShell(effects);
    const std::wstring exePath = joinPath(folder, kApplicationFile);
    if (!verifyInstalledVersion(effects, exePath, message))
        return vela::Failure{std::move(message)};
    startInBackground(effects, exePath);
    return vela::Done{};
}

} // namespace

SetupActionResult runInstall(SetupEffects& effects, const InstallRequest& request)
{
    SetupActionResult result = beginRun(effects, L"install");
    const std::wstring package = tempSetupFile(effects, L"Tamber.msi");
    auto pin = preparePackage(effects, package);
    if (!pin) {
        result.message = pin.error();
        return result;
    }
    closeRunningApp(effects);
    const std::wstring folder = normalizeInstallFolder(request.installDir);
    if (!runInstaller(effects, installParameters(package, folder, result.logPath), result))
        return result;
    pin.value().reset();
    const SentenceOnFailure integrated = integrate(effects, folder, request);
    result.success = static_cast<bool>(integrated);
    if (!integrated)
        result.message = integrated.error();
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
