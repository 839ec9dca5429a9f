// What an install is to do.
#pragma once

#include <string>

namespace setup {

struct InstallRequest {
    std::wstring installDir;
    bool startWithWindows = true;
    bool desktopShortcut = false;
};

} // namespace setup
