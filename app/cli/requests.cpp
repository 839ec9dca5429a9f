#include "app/cli/requests.h"

#include "app/run/paths.h"
#include "app/run/products.h"
#include "app/run/user_folders.h"

namespace setup {

RunRequest readRunRequest(const CommandLine& commandLine, SetupEffects& effects)
{
    RunRequest request;
    request.quiet = commandLine.quiet;
    request.restartApp = commandLine.restartApp;
    request.waitPidText = commandLine.waitPidText;
    request.install.installDir = normalizeInstallFolder(commandLine.installDir);
    request.install.startWithWindows = !commandLine.noStartup && startsWithWindowsByDefault(effects);
    request.install.desktopShortcut = commandLine.desktop || hasDesktopShortcut(effects);
    return request;
}

bool startsWithWindowsByDefault(SetupEffects& effects)
{
    // The shortcut first: with it the answer is yes, installed or not, and the installer need not be asked.
    return effects.fileExists(startupShortcutPath(effects)) || !isProductInstalled(effects);
}

bool hasDesktopShortcut(FileEffects& files) { return files.fileExists(desktopShortcutPath(files)); }

} // namespace setup
