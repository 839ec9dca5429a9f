// What is said to the Windows Installer, and what its answer means.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace setup {

inline constexpr std::wstring_view kInstallerProgram = L"msiexec.exe";

// Between double quotes, with a backslash before each double quote inside.
std::wstring quoteArgument(std::wstring_view text);

std::wstring installParameters(std::wstring_view package, std::wstring_view installFolder,
                               std::wstring_view log);
std::wstring uninstallParameters(std::wstring_view productCode, std::wstring_view log);

// What the user can do about an exit code; empty for 0.
std::wstring_view describeInstallerExitCode(std::uint32_t code) noexcept;

} // namespace setup
