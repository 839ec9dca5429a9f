// Opens the sample dialog the way the setup opens its own, for measuring how long that takes.
// Usage: open_dialog SKIN_FOLDER SKIN
#include "bench/sample_dialog_win32.h"

#include "vela/theme/skin_host_win32.h"
#include "vela/theme/style_sections.h"

#include <cstdlib>

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    if (__argc < 3)
        return 2;
    vela::setSkinFolders({__wargv[1]});
    bench::SampleDialog dialog(
        std::make_shared<vela::StyleSheet>(vela::buildStyleSheet(vela::skinCatalog().find(__wargv[2]))));
    return dialog.runModal();
}
