#include "app/cli/interactive_flow.h"

#include "app/cli/action_texts.h"
#include "app/cli/requests.h"
#include "app/run/installed_app.h"
#include "app/run/products.h"
#include "app/run/setup_runs.h"

namespace setup {

ChoiceState initialChoice(SetupEffects& effects)
{
    ChoiceState state;
    state.installed = isProductInstalled(effects);
    state.choice.install.startWithWindows = startsWithWindowsByDefault(effects);
    state.choice.install.desktopShortcut = hasDesktopShortcut(effects);
    return state;
}

int runInteractiveFlow(SetupEffects& effects, SetupScreens& screens)
{
    const SetupChoice choice = screens.showSetupChoice(initialChoice(effects));
    const ActionTexts* const texts = textsOf(choice.action);
    if (!texts)
        return kExitSuccess;
    const bool uninstalls = choice.action == SetupAction::Uninstall;
    const SetupActionResult result = screens.runWithProgress(texts->progressTitle, texts->progressBody, [&] {
        return uninstalls ? runUninstall(effects) : runInstall(effects, choice.install);
    });
    screens.showNotice(resultNotice(result, texts->result));
    if (!result.success)
        return texts->failureExitCode;
    if (!uninstalls)
        launchInstalledApp(effects, choice.install.installDir);
    return kExitSuccess;
}

} // namespace setup
