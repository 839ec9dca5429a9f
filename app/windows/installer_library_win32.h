// The library of the Windows Installer, which brings a dozen more along.
#pragma once

#include "vela/library_win32.h"

namespace setup {

// Loaded when first asked for, by any thread.
const vela::SystemLibrary& installerLibrary() noexcept;

} // namespace setup
