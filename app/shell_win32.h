// The shell: known folders, links, the notification after a change.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// Empty when Windows gives no path.
std::wstring knownFolder(KnownFolder folder);

// Writes the link, with the folders it lies in. The HRESULT of the first call that failed.
std::int32_t createShellLink(const ShellLink& link);

void notifyShellChanged();

} // namespace setup
