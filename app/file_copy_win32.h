// Copies of a file.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// Copies over an existing file. When both names mean the same file already, that counts as copied.
WindowsError copyFileOver(const std::wstring& source, const std::wstring& target);

} // namespace setup
