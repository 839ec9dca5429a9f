#include "app/run/paths.h"

#include "app/run/identity.h"

#include "vela/text.h"

namespace setup {
namespace {

constexpr std::wstring_view kSeparators = L"\\/";

constexpr bool isSeparator(wchar_t c) noexcept { return c == L'\\' || c == L'/'; }

} // namespace

std::wstring normalizeInstallFolder(std::wstring_view text)
{
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    constexpr std::size_t kDriveRootLength = 3;
    text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    if (text.empty())
        return std::wstring(kDefaultInstallFolder);
    while (text.size() > kDriveRootLength && isSeparator(text.back()))
        text.remove_suffix(1);
    return std::wstring(text);
}

std::wstring joinPath(std::wstring_view folder, std::wstring_view name)
{
    std::wstring path(folder);
    if (!path.empty() && !isSeparator(path.back()))
        path += L'\\';
    return path.append(name);
}

std::wstring parentFolder(std::wstring_view path)
{
    const std::size_t separator = path.find_last_of(kSeparators);
    if (separator == std::wstring_view::npos)
        return {};
    std::wstring_view folder = path.substr(0, separator);
    if (!folder.empty() && folder.back() == L':')
        folder = path.substr(0, separator + 1);
    return folder.size() < path.size() ? std::wstring(folder) : std::wstring();
}

std::wstring pickedInstallFolder(std::wstring_view folder)
{
    while (!folder.empty() && isSeparator(folder.back()))
        folder.remove_suffix(1);
    const std::wstring_view lastName = folder.substr(folder.find_last_of(kSeparators) + 1);
    return vela::equalsIgnoringAsciiCase(lastName, kProductName) ? std::wstring(folder)
                                                                 : joinPath(folder, kProductName);
}

std::wstring extendedPath(std::wstring_view fullPath)
{
    if (fullPath.starts_with(L"\\\\?\\") || fullPath.starts_with(L"\\\\.\\"))
        return std::wstring(fullPath);
    if (fullPath.starts_with(L"\\\\"))
        return L"\\\\?\\UNC" + std::wstring(fullPath.substr(1));
    return L"\\\\?\\" + std::wstring(fullPath);
}

} // namespace setup
