// What an interactive run shows, behind an interface, so that its order is tested without a window.
#pragma once

#include "app/cli/notice.h"
#include "app/cli/setup_choice.h"
#include "app/run/action_result.h"

#include <functional>

namespace setup {

using SetupTask = std::function<SetupActionResult()>;

class SetupScreens : public NoticeScreen {
public:
    virtual SetupChoice showSetupChoice(const ChoiceState& state) = 0;
    // Returns the task's result once it has ended; the task may throw.
    virtual SetupActionResult runWithProgress(std::wstring_view title, std::wstring_view body,
                                              const SetupTask& task) = 0;
};

} // namespace setup
