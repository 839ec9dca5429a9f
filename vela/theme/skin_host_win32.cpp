#include "vela/theme/skin_host_win32.h"

#include "vela/owned_win32.h"

#include <utility>

#include <windows.h>

namespace vela {

namespace {

struct FileSearchTraits {
    using Handle = HANDLE;
    static Handle empty() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(Handle handle) noexcept { ::FindClose(handle); }
};
using OwnedFileSearch = Owned<FileSearchTraits>;

std::vector<std::wstring>& skinFolders()
{
    static std::vector<std::wstring> folders;
    return folders;
}

} // namespace

std::vector<std::wstring> WindowsSkinHost::fileNames(const std::wstring& folder)
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

std::optional<std::string> WindowsSkinHost::readFile(const std::wstring& path, std::size_t limit)
{
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const OwnedFile file(::CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    if (!file || !::GetFileSizeEx(file.get(), &size) || static_cast<ULONGLONG>(size.QuadPart) > limit)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
        return std::nullopt;
    bytes.resize(read);
    return bytes;
}

std::optional<std::uint32_t> WindowsSkinHost::appsUseLightTheme()
{
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS status = ::RegGetValueW(
        HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
        L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &value, &size);
    return status == ERROR_SUCCESS ? std::optional<std::uint32_t>(value) : std::nullopt;
}

void setSkinFolders(std::vector<std::wstring> folders) { skinFolders() = std::move(folders); }

const SkinCatalog& skinCatalog()
{
    static WindowsSkinHost host;
    static const SkinCatalog catalog(host, skinFolders());
    return catalog;
}

} // namespace vela
