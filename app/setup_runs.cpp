#include "app/setup_runs.h"

#include "app/identity.h"
#include "app/installed_app.h"
#include "app/installer_command.h"
#include "app/paths.h"
#include "app/products.h"
#include "app/running_app.h"
#include "app/shortcuts.h"
#include "app/step_log.h"
#include "app/temp_file.h"

#include "vela/text.h"

namespace setup {
namespace {

constexpr std::wstring_view kSetupNotCopied =
    L"MSI probehlo, ale setup nedokazal zkopirovat TamberSetup.exe do instalacni slozky.";

struct PackageSentence {
    PackageFault fault;
    std::wstring_view text;
    bool namesFile; // followed by the path of the package file
};

constexpr PackageSentence kPackageSentences[] = {
    {PackageFault::Absent, L"Setup nema vlozeny MSI balicek. Stahni setup znovu.", false},
    {PackageFault::Unreadable, L"Vlozeny MSI balicek nejde nacist. Stahni setup znovu.", false},
    {PackageFault::NotCreated, L"Setup nedokazal vytvorit docasny MSI soubor: ", true},
    {PackageFault::NotWritten, L"Setup nedokazal zapsat cely docasny MSI soubor: ", true},
};

std::wstring packageSentence(PackageFault fault, const std::wstring& package)
{
    for (const PackageSentence& row : kPackageSentences) {
        if (row.fault == fault)
            return std::wstring(row.text).append(row.namesFile ? package : std::wstring());
    }
    return {};
}

SetupActionResult beginRun(SetupEffects& effects, std::wstring_view phase)
{
    SetupActionResult result;
    result.phase = phase;
    result.logPath = tempSetupFile(effects, std::wstring(phase).append(L".log"));
    return result;
}

// Writes the package file and keeps others from changing it; null with the sentence for the user.
std::unique_ptr<PackagePin> preparePackage(SetupEffects& effects, const std::wstring& package,
                                           std::wstring& message)
{
    const PackageOutcome extracted = effects.extractPackage(package);
    if (!noteStep(effects, L"extract package", extracted.error, package)) {
        message = packageSentence(extracted.fault, package);
        return nullptr;
    }
    PinOutcome pinned = effects.pinPackage(package);
    if (!noteStep(effects, L"pin package", pinned.error))
        message = packageSentence(PackageFault::NotWritten, package);
    return std::move(pinned.pin);
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
