// Where things lie on this machine.
#include "app/windows/setup_effects_win32.h"

#include "app/run/paths.h"
#include "app/windows/process_win32.h"

#include "vela/com_pointer_win32.h"

#include <shlobj.h>

// Last, and the ids of folders are defined here: the library that has them brings 40 KB of others along.
#include <initguid.h>

#include <knownfolders.h>

namespace setup {
namespace {

struct FolderId {
    KnownFolder folder;
    const KNOWNFOLDERID& id;
};

constexpr FolderId kFolderIds[] = {
    {KnownFolder::Desktop, FOLDERID_Desktop},
    {KnownFolder::Startup, FOLDERID_Startup},
    {KnownFolder::LocalAppData, FOLDERID_LocalAppData},
};

} // namespace

std::wstring WindowsEffects::programFolder() { return parentFolder(programPath()); }

std::wstring WindowsEffects::tempFolder()
{
    // The longest that GetTempPathW can return, and its terminator.
    std::array<wchar_t, MAX_PATH + 2> folder{};
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return length < folder.size() ? std::wstring(folder.data(), length) : std::wstring();
}

std::wstring WindowsEffects::knownFolder(KnownFolder folder)
{
    for (const FolderId& row : kFolderIds) {
        if (row.folder != folder)
            continue;
        vela::OwnedTaskText path;
        const HRESULT result = ::SHGetKnownFolderPath(row.id, 0, nullptr, path.put());
        return SUCCEEDED(result) && path ? std::wstring(path.get()) : std::wstring();
    }
    return {};
}

std::wstring WindowsEffects::environmentVariable(const wchar_t* name)
{
    const DWORD size = ::GetEnvironmentVariableW(name, nullptr, 0);
    std::wstring value(size, L'\0');
    value.resize(size != 0 ? ::GetEnvironmentVariableW(name, value.data(), size) : 0);
    return value;
}

} // namespace setup
