#include "app/files_win32.h"

#include "app/paths.h"
#include "app/process_win32.h"
#include "app/setup_effects_win32.h"

#include <cstring>

namespace setup {
namespace {

// CreateDirectoryW leaves room for a short file name below MAX_PATH.
constexpr std::size_t kLongestPlainPath = MAX_PATH - 12;

WindowsError outcome(BOOL done) noexcept { return done ? kNoError : ::GetLastError(); }

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

vela::OwnedFile openToIdentify(const std::wstring& path)
{
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return vela::OwnedFile(
        ::CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
}

bool sameIdentity(HANDLE left, HANDLE right) noexcept
{
    FILE_ID_INFO a{};
    FILE_ID_INFO b{};
    if (::GetFileInformationByHandleEx(left, FileIdInfo, &a, sizeof a) &&
        ::GetFileInformationByHandleEx(right, FileIdInfo, &b, sizeof b))
        return a.VolumeSerialNumber == b.VolumeSerialNumber &&
               std::memcmp(&a.FileId, &b.FileId, sizeof a.FileId) == 0;
    // File systems without 128-bit ids, such as FAT and some servers.
    BY_HANDLE_FILE_INFORMATION c{};
    BY_HANDLE_FILE_INFORMATION d{};
    return ::GetFileInformationByHandle(left, &c) && ::GetFileInformationByHandle(right, &d) &&
           c.dwVolumeSerialNumber == d.dwVolumeSerialNumber && c.nFileIndexHigh == d.nFileIndexHigh &&
           c.nFileIndexLow == d.nFileIndexLow;
}

bool sameFile(const std::wstring& left, const std::wstring& right)
{
    const vela::OwnedFile a = openToIdentify(left);
    const vela::OwnedFile b = openToIdentify(right);
    return a && b && sameIdentity(a.get(), b.get());
}

// A copy inherits its source's attributes: one made from a read-only medium would refuse the next one.
void clearReadOnly(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        ::SetFileAttributesW(path.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

} // namespace

std::wstring reachablePath(const std::wstring& path)
{
    const DWORD size = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    if (size <= kLongestPlainPath)
        return path;
    std::wstring full(size, L'\0');
    full.resize(::GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return extendedPath(full);
}

std::wstring WindowsEffects::tempFolder()
{
    // The longest that GetTempPathW can return, and its terminator.
    std::array<wchar_t, MAX_PATH + 2> folder{};
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return length < folder.size() ? std::wstring(folder.data(), length) : std::wstring();
}

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

WindowsError copyFileOver(const std::wstring& source, const std::wstring& target)
{
    const std::wstring from = reachablePath(source);
    const std::wstring to = reachablePath(target);
    if (sameFile(from, to))
        return kNoError;
    clearReadOnly(to);
    return outcome(::CopyFileW(from.c_str(), to.c_str(), FALSE));
}

WindowsError WindowsEffects::copySetup(const std::wstring& target)
{
    return copyFileOver(programPath(), target);
}

WindowsError WindowsEffects::deleteFile(const std::wstring& path)
{
    return outcome(::DeleteFileW(reachablePath(path).c_str()));
}

} // namespace setup
