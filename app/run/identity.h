// What the setup installs: the names and numbers that every part of the program shares. The version comes
// from the build.
#pragma once

#include "app/run/version.h"

#include <string_view>

namespace setup {

inline constexpr std::wstring_view kProductName = L"Tamber";
inline constexpr std::wstring_view kApplicationFile = L"Tamber.exe";
inline constexpr std::wstring_view kSetupFile = L"TamberSetup.exe";
inline constexpr std::wstring_view kShortcutFile = L"Tamber.lnk";
inline constexpr std::wstring_view kUpgradeCode = L"{6B1E24D0-5A7C-4F19-9E3B-2C8D41A07F55}";
inline constexpr std::wstring_view kDefaultInstallFolder = L"C:\\Program Files\\Tamber";
inline constexpr std::wstring_view kMutexName = L"Local\\Corvalin.Tamber.Setup";

} // namespace setup
