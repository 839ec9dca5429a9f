// Files at any path length, beneath the setup's effects.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// The path in a form that Windows takes beyond 260 characters too, whatever the machine's policy on long
// paths says.
std::wstring reachablePath(const std::wstring& path);

// Copies over an existing file. When both names mean the same file already, that counts as copied.
WindowsError copyFileOver(const std::wstring& source, const std::wstring& target);

} // namespace setup
