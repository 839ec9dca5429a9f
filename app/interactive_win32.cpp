#include "app/interactive_win32.h"

#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/progress_run.h"
#include "app/dialogs/setup_styles.h"
#include "app/setup_effects_win32.h"
#include "app/worker_thread_win32.h"

#include "vela/render/text/text.h"

namespace setup {
namespace {

class WindowScreens final : public SetupScreens {
public:
    explicit WindowScreens(DialogHost host) : host_(std::move(host)) {}

    SetupChoice showSetupChoice(const ChoiceState& state) override
    {
        return setup::showSetupChoice(host_, state);
    }
    SetupActionResult runWithProgress(std::wstring_view title, std::wstring_view body,
                                      const SetupTask& task) override
    {
        return setup::runWithProgress(host_, title, body, task);
    }

private:
    DialogHost host_;
};

} // namespace

int runInteractiveSetup(HINSTANCE module, SetupEffects& effects)
{
    vela::openTextEngine();
    // The installer's library, with a dozen more behind it, is loaded while the skins are read.
    const WorkerThread ahead(installerLibrary);
    const DialogHost host{module, setupStyles(effects)};
    host.styles();
    WindowScreens screens(host);
    return runInteractiveFlow(effects, screens);
}

} // namespace setup
