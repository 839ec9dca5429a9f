#include "app/windows/file_copy_win32.h"

#include "app/windows/reachable_path_win32.h"

#include "vela/owned_win32.h"

#include <cstring>

namespace setup {
namespace {

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

WindowsError copyFileOver(const std::wstring& source, const std::wstring& target)
{
    const std::wstring from = reachablePath(source);
    const std::wstring to = reachablePath(target);
    if (sameFile(from, to))
        return kNoError;
    clearReadOnly(to);
    return ::CopyFileW(from.c_str(), to.c_str(), FALSE) ? kNoError : ::GetLastError();
}

} // namespace setup
