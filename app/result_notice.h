// What a finished run tells its user: title, body and look of the notice.
#pragma once

#include "app/action_result.h"
#include "app/notice.h"

namespace setup {

struct ResultTexts {
    std::wstring_view successTitle;
    std::wstring_view failureTitle;
    std::wstring_view successText;
};

inline constexpr std::wstring_view kInstalledTitle = L"Nainstalovano";
inline constexpr std::wstring_view kInstallFailedTitle = L"Instalace selhala";
inline constexpr std::wstring_view kUninstalledTitle = L"Odinstalovano";
inline constexpr std::wstring_view kUninstallFailedTitle = L"Odinstalace selhala";
inline constexpr std::wstring_view kUninstalledText = L"Tamber byl odebran pres Windows Installer.";

Notice resultNotice(const SetupActionResult& result, const ResultTexts& texts);

} // namespace setup
