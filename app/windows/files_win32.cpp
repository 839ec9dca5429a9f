// Files and folders, at any path length.
#include "app/windows/setup_effects_win32.h"

#include "app/run/paths.h"
#include "app/windows/file_copy_win32.h"
#include "app/windows/process_win32.h"
#include "app/windows/reachable_path_win32.h"

namespace setup {
namespace {

bool isFolder(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Goes up to the first folder that is there, then down again creating.
WindowsError createMissingFolders(const std::wstring& folder)
{
    std::vector<std::wstring> missing{folder};
    while (!missing.empty()) {
        const std::wstring& deepest = missing.back();
        if (::CreateDirectoryW(deepest.c_str(), nullptr)) {
            missing.pop_back();
            continue;
        }
        const DWORD error = ::GetLastError();
        std::wstring parent = parentFolder(deepest);
        if (error == ERROR_PATH_NOT_FOUND && !parent.empty() && !isFolder(parent))
            missing.push_back(std::move(parent));
        else if (isFolder(deepest))
            missing.pop_back();
        else
            return error;
    }
    return kNoError;
}

} // namespace

bool WindowsEffects::fileExists(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(reachablePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

WindowsError WindowsEffects::createFolders(const std::wstring& folder)
{
    const std::wstring path = reachablePath(folder);
    return isFolder(path) ? kNoError : createMissingFolders(path);
}

WindowsError WindowsEffects::copySetup(const std::wstring& target)
{
    return copyFileOver(programPath(), target);
}

WindowsError WindowsEffects::deleteFile(const std::wstring& path)
{
    return ::DeleteFileW(reachablePath(path).c_str()) ? kNoError : ::GetLastError();
}

} // namespace setup
