// What the setup says while and after it does what it was asked to.
#pragma once

#include "app/cli/result_notice.h"
#include "app/cli/setup_choice.h"
#include "app/run/exit_code.h"

namespace setup {

struct ActionTexts {
    SetupAction action;
    std::wstring_view progressTitle;
    std::wstring_view progressBody;
    ResultTexts result;
    ExitCode failureExitCode;
};

// Null for closing, which does nothing and says nothing.
const ActionTexts* textsOf(SetupAction action) noexcept;

// Of the silent modes, after which no application opens by itself.
extern const ResultTexts kSilentInstallTexts;
extern const ResultTexts kSilentUninstallTexts;

} // namespace setup
