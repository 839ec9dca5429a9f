// Paths at any length.
#pragma once

#include <string>

namespace setup {

// The path in a form that Windows takes beyond 260 characters too, whatever the machine's policy on long
// paths says.
std::wstring reachablePath(const std::wstring& path);

} // namespace setup
