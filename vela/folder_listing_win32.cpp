#include "vela/folder_listing_win32.h"

#include "vela/owned_win32.h"

namespace vela {
namespace {

struct FileSearchTraits {
    using Handle = HANDLE;
    static Handle empty() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(Handle handle) noexcept { ::FindClose(handle); }
};
using OwnedFileSearch = Owned<FileSearchTraits>;

} // namespace

std::vector<std::wstring> fileNamesIn(const std::wstring& folder)
{
    std::vector<std::wstring> names;
    // All files, because a pattern would also match short names: "*.json" finds "skin.jsonx".
    WIN32_FIND_DATAW entry{};
    const OwnedFileSearch search(::FindFirstFileW((folder + L"\\*").c_str(), &entry));
    if (!search)
        return names;
    do {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            names.emplace_back(entry.cFileName);
    } while (::FindNextFileW(search.get(), &entry));
    return names;
}

} // namespace vela
