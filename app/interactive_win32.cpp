#include "app/interactive_win32.h"

#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/progress_run.h"
#include "app/dialogs/setup_styles.h"
#include "app/worker_thread_win32.h"

#include "vela/render/text.h"

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

// The first question to the installer loads its library, with a dozen more behind it.
void askAhead(SetupEffects& effects) noexcept
{
    try {
        effects.relatedProduct(0);
    } catch (...) { // out of memory: the question is asked again where its answer counts
    }
}

} // namespace

int runInteractiveSetup(HINSTANCE module, SetupEffects& effects)
{
    vela::openTextEngine();
    // Answered while the skins are read. Until then this thread asks the effects for files and folders only.
    const WorkerThread ahead([&effects] { askAhead(effects); });
    const DialogHost host{module, setupStyles(effects)};
    host.styles();
    WindowScreens screens(host);
    return runInteractiveFlow(effects, screens);
}

} // namespace setup
