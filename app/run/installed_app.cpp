#include "app/run/installed_app.h"

#include "app/effects/step_log.h"
#include "app/run/identity.h"
#include "app/run/installer_command.h"
#include "app/run/paths.h"
#include "app/run/version_text.h"

namespace setup {
namespace {

constexpr std::wstring_view kPreparationArguments =
    L"--prepare-dev-toolchain --prepare-local-provider --prefer-ollama --pull-selected-model";

std::wstring otherVersionSentence(const std::wstring& found)
{
    return std::wstring(L"Instalace probehla, ale nainstalovany Tamber.exe ma verzi ")
        .append(found)
        .append(L" misto ocekavane ")
        .append(kVersionText)
        .append(L". Setup nespusti starou aplikaci; spust instalaci znovu.");
}

} // namespace

bool verifyInstalledVersion(SetupEffects& effects, const std::wstring& exePath, std::wstring& message)
{
    constexpr std::wstring_view kStep = L"check installed version";
    const std::optional<ProductVersion> version = effects.productVersion(exePath);
    if (!version) {
        noteStep(effects, kStep, kErrorInvalidData, L"none");
        message =
            L"Instalace probehla, ale setup nedokazal overit verzi nainstalovaneho Tamber.exe: " + exePath;
        return false;
    }
    const std::wstring found = versionText(*version);
    const bool same = normalizeVersion(found) == normalizeVersion(kVersionText);
    noteStep(effects, kStep, same ? kNoError : kErrorRevisionMismatch, found);
    if (!same)
        message = otherVersionSentence(found);
    return same;
}

void startInBackground(SetupEffects& effects, const std::wstring& exePath)
{
    const std::wstring commandLine = quoteArgument(exePath).append(L" ").append(kPreparationArguments);
    noteStep(effects, L"start application in background",
             effects.startHidden(commandLine, parentFolder(exePath)));
}

bool launchInstalledApp(SetupEffects& effects, const std::wstring& installDir)
{
    const std::wstring folder = normalizeInstallFolder(installDir);
    const std::wstring exePath = joinPath(folder, kApplicationFile);
    std::wstring ignoredMessage;
    return verifyInstalledVersion(effects, exePath, ignoredMessage) &&
           noteStep(effects, L"start application", effects.startVisible(exePath, folder));
}

} // namespace setup
