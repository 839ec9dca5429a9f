#include "app/run/shortcuts.h"

#include "app/effects/step_log.h"
#include "app/run/identity.h"
#include "app/run/paths.h"
#include "app/run/user_folders.h"

namespace setup {
namespace {

constexpr std::wstring_view kDescription = L"Tamber personal local agent";

struct Shortcut {
    std::wstring (*path)(FileEffects&);
    std::wstring_view arguments;
    std::wstring_view step;
    std::wstring_view failure;
};

constexpr Shortcut kStartupShortcut{startupShortcutPath, L"--start-hidden", L"startup shortcut",
                                    L"Nepodarilo se nastavit spousteni Tambere s Windows."};
constexpr Shortcut kDesktopShortcut{desktopShortcutPath, L"", L"desktop shortcut",
                                    L"Nepodarilo se nastavit zastupce Tambere na plose."};

WindowsError createShortcut(ShellEffects& shell, const std::wstring& link, const std::wstring& target,
                            std::wstring_view arguments)
{
    const std::int32_t result =
        shell.createShellLink({link, target, arguments, parentFolder(target), kDescription});
    return result < 0 ? static_cast<WindowsError>(result) : kNoError;
}

// A link that is not there counts as removed. A folder that is not there does not: that profile is broken,
// and a start with Windows that the user switched off cannot be vouched for.
WindowsError removeShortcut(FileEffects& files, const std::wstring& link)
{
    const WindowsError error = files.deleteFile(link);
    return error == kErrorFileNotFound ? kNoError : error;
}

bool ensureShortcut(SetupEffects& effects, const Shortcut& shortcut, const std::wstring& target, bool enabled,
                    std::wstring& message)
{
    const std::wstring link = shortcut.path(effects);
    const WindowsError error =
        enabled ? createShortcut(effects, link, target, shortcut.arguments) : removeShortcut(effects, link);
    if (noteStep(effects, shortcut.step, error, enabled ? L"on" : L"off"))
        return true;
    message = shortcut.failure;
    return false;
}

} // namespace

bool configureShortcuts(SetupEffects& effects, const std::wstring& installDir, bool startWithWindows,
                        bool desktopShortcut, std::wstring& message)
{
    const std::wstring target = joinPath(normalizeInstallFolder(installDir), kApplicationFile);
    return ensureShortcut(effects, kStartupShortcut, target, startWithWindows, message) &&
           ensureShortcut(effects, kDesktopShortcut, target, desktopShortcut, message);
}

void removeShortcuts(SetupEffects& effects)
{
    for (const Shortcut* shortcut : {&kStartupShortcut, &kDesktopShortcut})
        noteStep(effects, shortcut->step, removeShortcut(effects, shortcut->path(effects)), L"off");
}

} // namespace setup
