#include "app/cli/action_texts.h"

#include <algorithm>
#include <iterator>

namespace setup {
namespace {

constexpr std::wstring_view kInstalledTitle = L"Nainstalovano";
constexpr std::wstring_view kInstallFailedTitle = L"Instalace selhala";
constexpr std::wstring_view kUninstalledTitle = L"Odinstalovano";
constexpr std::wstring_view kUninstallFailedTitle = L"Odinstalace selhala";
constexpr std::wstring_view kUninstalledText = L"Tamber byl odebran pres Windows Installer.";

constexpr ActionTexts kActionTexts[] = {
    {SetupAction::Install,
     L"Instaluju Tambere",
     L"Instaluju Tambere a pripadne zavru starsi bezici instanci. Okno zustane ovladatelne; vysledek se "
     L"ukaze automaticky.",
     {kInstalledTitle, kInstallFailedTitle,
      L"Tamber byl nainstalovan. Po zavreni tohoto okna ho otevru. Lokalni modely a vyvojove nastroje se "
      L"muzou jeste chvili pripravovat na pozadi."},
     kExitInstallFailed},
    {SetupAction::Reinstall,
     L"Preinstalovavam Tambere",
     L"Preinstalace prave bezi. Kdyz je potreba, setup nejdriv korektne zavre starsi Tamber okno a pak "
     L"pokracuje.",
     {L"Preinstalovano", kInstallFailedTitle,
      L"Tamber byl preinstalovan. Po zavreni tohoto okna ho otevru. Lokalni modely a vyvojove nastroje se "
      L"muzou jeste chvili pripravovat na pozadi."},
     kExitInstallFailed},
    {SetupAction::Uninstall,
     L"Odebírám Tambere",
     L"Odinstalace prave bezi. Setup zavre bezici Tamber okno a odebere aplikaci pres Windows Installer.",
     {kUninstalledTitle, kUninstallFailedTitle, kUninstalledText},
     kExitUninstallFailed},
};

} // namespace

constinit const ResultTexts kSilentInstallTexts{kInstalledTitle, kInstallFailedTitle,
                                                L"Tamber byl nainstalovan."};
constinit const ResultTexts kSilentUninstallTexts{kUninstalledTitle, kUninstallFailedTitle, kUninstalledText};

const ActionTexts* textsOf(SetupAction action) noexcept
{
    const auto* const row = std::find_if(std::begin(kActionTexts), std::end(kActionTexts),
                                         [action](const ActionTexts& each) { return each.action == action; });
    return row == std::end(kActionTexts) ? nullptr : row;
}

} // namespace setup
