// The application's installer package: a resource of this program, written to a file for the installer.
#pragma once

#include "app/setup_effects.h"

#include "vela/owned_win32.h"

namespace setup {

// Writes the package that `module` carries to `target`, over an existing file.
PackageOutcome extractEmbeddedPackage(HMODULE module, const std::wstring& target);

// Opens the file so that others may only read it, and compares it with the package that `module` carries.
PinOutcome pinEmbeddedPackage(HMODULE module, const std::wstring& path);

} // namespace setup
