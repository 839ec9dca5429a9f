#include "vela/theme/skins/skin_host_win32.h"

#include "vela/folder_listing_win32.h"
#include "vela/owned_win32.h"

#include <windows.h>

namespace vela {

std::vector<std::wstring> WindowsSkinHost::fileNames(const std::wstring& folder)
{
    return fileNamesIn(folder);
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

std::optional<SystemColors> WindowsSkinHost::highContrastColors()
{
    HIGHCONTRASTW mode{};
    mode.cbSize = sizeof mode;
    if (!::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof mode, &mode, 0) ||
        (mode.dwFlags & HCF_HIGHCONTRASTON) == 0)
        return std::nullopt;
    return SystemColors{.window = ::GetSysColor(COLOR_WINDOW),
                        .windowText = ::GetSysColor(COLOR_WINDOWTEXT),
                        .hotlight = ::GetSysColor(COLOR_HOTLIGHT),
                        .grayText = ::GetSysColor(COLOR_GRAYTEXT),
                        .highlight = ::GetSysColor(COLOR_HIGHLIGHT),
                        .highlightText = ::GetSysColor(COLOR_HIGHLIGHTTEXT),
                        .buttonFace = ::GetSysColor(COLOR_BTNFACE),
                        .buttonText = ::GetSysColor(COLOR_BTNTEXT)};
}

} // namespace vela
