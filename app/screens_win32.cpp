#include "app/screens_win32.h"

#include "app/cli/interactive_flow.h"
#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/notice_dialog.h"
#include "app/dialogs/progress_run.h"
#include "app/dialogs/setup_styles.h"
#include "app/windows/installer_library_win32.h"

#include "vela/render/text/text_engine.h"
#include "vela/worker_thread_win32.h"

namespace setup {

WindowScreens::WindowScreens(HINSTANCE module, SetupEffects& effects)
    : host_{module, setupStyles(effects), nullptr, &lastMiddle_}
{
}

void WindowScreens::prepare() { host_.styles(); }

void WindowScreens::showNotice(const Notice& notice) { setup::showNotice(host_, notice); }

SetupChoice WindowScreens::showSetupChoice(const ChoiceState& state)
{
    return setup::showSetupChoice(host_, state);
}

SetupActionResult WindowScreens::runWithProgress(std::wstring_view title, std::wstring_view body,
                                                 const SetupTask& task)
{
    return setup::runWithProgress(host_, title, body, task);
}

int runInteractiveSetup(SetupEffects& effects, WindowScreens& screens)
{
    vela::openTextEngine();
    // The installer's libraries are loaded while the skins are read.
    const vela::WorkerThread ahead(installerLibrary);
    screens.prepare();
    return runInteractiveFlow(effects, screens);
}

} // namespace setup
