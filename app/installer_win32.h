// The Windows Installer: asked about products through its library, run through its program.
#pragma once

#include "app/setup_effects.h"

namespace setup {

RelatedProduct relatedProduct(std::uint32_t index);

// Runs the system folder's installer program and waits for its end, however long that takes. Meanwhile the
// machine does not go to sleep.
InstallerExit runInstaller(const std::wstring& parameters);

} // namespace setup
