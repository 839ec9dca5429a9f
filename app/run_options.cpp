#include "app/run_options.h"

#include "app/paths.h"
#include "app/products.h"
#include "app/user_folders.h"

namespace setup {

RunOptions readRunOptions(const CommandLine& commandLine, SetupEffects& effects)
{
    RunOptions options;
    options.quiet = commandLine.quiet;
    options.restartApp = commandLine.restartApp;
    options.waitPidText = commandLine.waitPidText;
    options.install.installDir = normalizeInstallFolder(commandLine.installDir);
    options.install.startWithWindows = !commandLine.noStartup && startsWithWindowsByDefault(effects);
    options.install.desktopShortcut = commandLine.desktop || hasDesktopShortcut(effects);
    return options;
}

bool startsWithWindowsByDefault(SetupEffects& effects)
{
    // The shortcut first: with it the answer is yes, installed or not, and the installer need not be asked.
    return effects.fileExists(startupShortcutPath(effects)) || !isProductInstalled(effects);
}

bool hasDesktopShortcut(FileEffects& files) { return files.fileExists(desktopShortcutPath(files)); }

} // namespace setup
