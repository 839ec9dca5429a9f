// The installed application's file: reading its version and starting it.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// The product version of the file's fixed version block; empty when the file has no valid one.
std::optional<ProductVersion> productVersion(const std::wstring& path);

// Starts a program without a window, and does not wait for it. `folder` may be empty.
WindowsError startHidden(const std::wstring& commandLine, const std::wstring& folder);

// Opens a program through the shell, as if the user had.
WindowsError startVisible(const std::wstring& program, const std::wstring& folder);

} // namespace setup
