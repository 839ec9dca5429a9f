#include "app/windows/reachable_path_win32.h"

#include "app/run/paths.h"

#include <windows.h>

namespace setup {

std::wstring reachablePath(const std::wstring& path)
{
    // CreateDirectoryW leaves room for a short file name below MAX_PATH.
    constexpr DWORD kLongestPlainPath = MAX_PATH - 12;
    const DWORD size = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    if (size <= kLongestPlainPath)
        return path;
    std::wstring full(size, L'\0');
    full.resize(::GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return extendedPath(full);
}

} // namespace setup
