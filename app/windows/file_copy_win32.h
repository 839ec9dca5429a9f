// Copies of a file.
#pragma once

#include "app/effects/windows_error.h"

#include <string>

namespace setup {

// Copies over an existing file. When both names mean the same file already, that counts as copied.
WindowsError copyFileOver(const std::wstring& source, const std::wstring& target);

} // namespace setup
