// Files and folders as the setup needs them, at any path length.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// The path in a form that Windows takes beyond 260 characters too, whatever the machine's policy on long
// paths says.
std::wstring reachablePath(const std::wstring& path);

// GetTempPathW's folder; empty when it gives none.
std::wstring tempFolder();

bool fileExists(const std::wstring& path);

// Creates the folder with all missing parents. A file in its place, or in a parent's, is an error.
WindowsError createFolders(const std::wstring& folder);

// Copies over an existing file. When both names mean the same file already, that counts as copied.
WindowsError copyFileOver(const std::wstring& source, const std::wstring& target);

WindowsError deleteFile(const std::wstring& path);

} // namespace setup
