// What the user can have done, and what they chose.
#pragma once

#include "app/run/identity.h"
#include "app/run/install_request.h"

#include <cstdint>

namespace setup {

enum class SetupAction : std::int32_t { Close = 0, Install = 1, Reinstall = 2, Uninstall = 3 };

// What the user chose in the first window.
struct SetupChoice {
    SetupAction action = SetupAction::Close;
    InstallRequest install{std::wstring(kDefaultInstallFolder)};
};

// What the first window starts from.
struct ChoiceState {
    bool installed = false;
    SetupChoice choice;
};

} // namespace setup
