#include "app/user_folders.h"

#include "app/identity.h"
#include "app/paths.h"

namespace setup {
namespace {

// Where the folder is when Windows does not say.
struct FolderRule {
    KnownFolder folder;
    const wchar_t* fallbackVariable;
    std::wstring_view fallbackBelow;
};

constexpr FolderRule kDesktop{KnownFolder::Desktop, L"USERPROFILE", L"\\Desktop"};
constexpr FolderRule kStartup{KnownFolder::Startup, L"APPDATA",
                              L"\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"};
constexpr FolderRule kLocalAppData{KnownFolder::LocalAppData, L"LOCALAPPDATA", L""};

std::wstring knownFolderOr(SetupEffects& effects, const FolderRule& rule)
{
    const std::wstring folder = effects.knownFolder(rule.folder);
    return !folder.empty() ? folder
                           : effects.environmentVariable(rule.fallbackVariable).append(rule.fallbackBelow);
}

} // namespace

std::wstring startupShortcutPath(SetupEffects& effects)
{
    return joinPath(knownFolderOr(effects, kStartup), kShortcutFile);
}

std::wstring desktopShortcutPath(SetupEffects& effects)
{
    return joinPath(knownFolderOr(effects, kDesktop), kShortcutFile);
}

std::wstring userDataFolder(SetupEffects& effects)
{
    return joinPath(knownFolderOr(effects, kLocalAppData), kProductName);
}

} // namespace setup
