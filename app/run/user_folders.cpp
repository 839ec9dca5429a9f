#include "app/run/user_folders.h"

#include "app/run/identity.h"
#include "app/run/paths.h"

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

std::wstring knownFolderOr(FileEffects& files, const FolderRule& rule)
{
    const std::wstring folder = files.knownFolder(rule.folder);
    return !folder.empty() ? folder
                           : files.environmentVariable(rule.fallbackVariable).append(rule.fallbackBelow);
}

} // namespace

std::wstring startupShortcutPath(FileEffects& files)
{
    return joinPath(knownFolderOr(files, kStartup), kShortcutFile);
}

std::wstring desktopShortcutPath(FileEffects& files)
{
    return joinPath(knownFolderOr(files, kDesktop), kShortcutFile);
}

std::wstring userDataFolder(FileEffects& files)
{
    return joinPath(knownFolderOr(files, kLocalAppData), kProductName);
}

} // namespace setup
