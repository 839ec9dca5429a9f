// The command line of the setup: which options exist and what they ask for.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace setup {

// What the caller wrote, before the state of the machine is looked at.
struct CommandLine {
    bool install = false;
    bool uninstall = false;
    bool quiet = false;
    bool noStartup = false;
    bool desktop = false;
    bool restartApp = false;
    std::wstring installDir;
    std::wstring waitPidText;
};

// `arguments` are those after the program path. An option may stand anywhere; what is not an option is passed
// over.
CommandLine parseCommandLine(const std::vector<std::wstring>& arguments);

enum class RunMode : std::uint8_t { Interactive, Install, Uninstall };

RunMode runModeOf(const CommandLine& commandLine) noexcept;

// The id that "--wait-pid" names, or 0 when the text is not a decimal number that a process id can hold.
std::uint32_t processIdFrom(std::wstring_view text) noexcept;

} // namespace setup
