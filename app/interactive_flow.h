// The order of an interactive run: choice, progress, notice, and the application after a success. What each
// step shows is behind an interface, so that the order is tested without a window.
#pragma once

#include "app/setup_actions.h"

#include <functional>

namespace setup {

using SetupTask = std::function<SetupActionResult()>;

// What the first window starts from.
struct ChoiceState {
    bool installed = false;
    SetupChoice choice;
};

class SetupScreens {
public:
    SetupScreens() = default;
    SetupScreens(const SetupScreens&) = delete;
    SetupScreens& operator=(const SetupScreens&) = delete;
    virtual ~SetupScreens() = default;

    virtual SetupChoice showSetupChoice(const ChoiceState& state) = 0;
    // Returns the task's result once it has ended; the task may throw.
    virtual SetupActionResult runWithProgress(std::wstring_view title, std::wstring_view body,
                                              const SetupTask& task) = 0;
};

// As the machine is now: a reinstall keeps the shortcuts the user has, a first install starts with Windows.
ChoiceState initialChoice(SetupEffects& effects);

// The process exit code. Notices go through the effects, as in the silent modes.
int runInteractiveFlow(SetupEffects& effects, SetupScreens& screens);

} // namespace setup
