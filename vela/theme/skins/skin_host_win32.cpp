#include "vela/theme/skins/skin_host_win32.h"

#include "vela/folder_listing_win32.h"
#include "vela/owned_win32.h"

#include <utility>

#include <windows.h>

namespace vela {

namespace {

std::vector<std::wstring>& skinFolders()
{
    static std::vector<std::wstring> folders;
    return folders;
}

} // namespace

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

SkinHost& systemSkinHost()
{
    static WindowsSkinHost host;
    return host;
}

void setSkinFolders(std::vector<std::wstring> folders) { skinFolders() = std::move(folders); }

const SkinCatalog& skinCatalog()
{
    static const SkinCatalog catalog(systemSkinHost(), skinFolders());
    return catalog;
}

std::shared_ptr<const StyleSheet> systemStyles(std::wstring_view requestedId)
{
    static const SkinDefinition* skin = nullptr;
    static std::optional<SystemColors> colors;
    static std::shared_ptr<const StyleSheet> sheet;
    const SkinDefinition& wanted = skinCatalog().find(requestedId);
    const std::optional<SystemColors> contrast = systemSkinHost().highContrastColors();
    const bool sameSkin = std::exchange(skin, &wanted) == &wanted;
    if (std::exchange(colors, contrast) != contrast || !sameSkin)
        sheet = std::make_shared<const StyleSheet>(styleSheetFor(wanted, systemSkinHost()));
    return sheet;
}

} // namespace vela
