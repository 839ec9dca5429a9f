// The windows of a run. Each is prepared when it is first asked for, so that a run without any touches
// neither skins nor fonts.
#pragma once

#include "app/cli/setup_screens.h"
#include "app/dialogs/setup_dialog.h"
#include "app/effects/setup_effects.h"

namespace setup {

class WindowScreens final : public SetupScreens {
public:
    // The module carries the windows' icon. Borrows the effects.
    WindowScreens(HINSTANCE module, SetupEffects& effects);

    // Has ready what the first window needs.
    void prepare();

    void showNotice(const Notice& notice) override;
    SetupChoice showSetupChoice(const ChoiceState& state) override;
    SetupActionResult runWithProgress(std::wstring_view title, std::wstring_view body,
                                      const SetupTask& task) override;

private:
    std::optional<vela::Point> lastMiddle_;
    DialogHost host_;
};

// The setup with windows of its own, in the place of the silent modes: the process exit code.
int runInteractiveSetup(SetupEffects& effects, WindowScreens& screens);

} // namespace setup
