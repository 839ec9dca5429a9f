// What the user can have done, and what the setup says while and after it does it.
#pragma once

#include "app/exit_code.h"
#include "app/identity.h"
#include "app/result_notice.h"
#include "app/setup_runs.h"

#include <cstdint>

namespace setup {

enum class SetupAction : std::int32_t { Close = 0, Install = 1, Reinstall = 2, Uninstall = 3 };

// What the user chose in the first window.
struct SetupChoice {
    SetupAction action = SetupAction::Close;
    InstallRequest install{std::wstring(kDefaultInstallFolder)};
};

struct ActionTexts {
    SetupAction action;
    std::wstring_view progressTitle;
    std::wstring_view progressBody;
    ResultTexts result;
    ExitCode failureExitCode;
};

inline constexpr ActionTexts kActionTexts[] = {
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

// Null for closing, which does nothing and says nothing.
const ActionTexts* textsOf(SetupAction action) noexcept;

} // namespace setup
