// The system's dialog for choosing a folder.
#pragma once

#include "vela/platform_handles.h"

#include <optional>
#include <string>

namespace setup {

// Opens at `current` and waits for the choice: the folder to install into, or none when the user cancelled or
// the system has no such dialog.
std::optional<std::wstring> pickInstallFolder(HWND owner, const std::wstring& current);

} // namespace setup
