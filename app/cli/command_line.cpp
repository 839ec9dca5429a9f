#include "app/cli/command_line.h"

#include "vela/text.h"

#include <algorithm>
#include <limits>

namespace setup {
namespace {

struct Switch {
    std::wstring_view name;
    bool CommandLine::*present;
};

constexpr Switch kSwitches[] = {
    {L"--install", &CommandLine::install}, {L"--uninstall", &CommandLine::uninstall},
    {L"--quiet", &CommandLine::quiet},     {L"--no-startup", &CommandLine::noStartup},
    {L"--desktop", &CommandLine::desktop}, {L"--restart-app", &CommandLine::restartApp},
};

struct ValueOption {
    std::wstring_view name;
    std::wstring CommandLine::*value;
};

constexpr ValueOption kValueOptions[] = {
    {L"--install-dir", &CommandLine::installDir},
    {L"--wait-pid", &CommandLine::waitPidText},
};

} // namespace

CommandLine parseCommandLine(const std::vector<std::wstring>& arguments)
{
    const auto find = [&](std::wstring_view name) {
        return std::find_if(arguments.begin(), arguments.end(), [&](const std::wstring& argument) {
            return vela::equalsIgnoringAsciiCase(argument, name);
        });
    };
    CommandLine result;
    for (const Switch& option : kSwitches)
        result.*option.present = find(option.name) != arguments.end();
    for (const ValueOption& option : kValueOptions) {
        const auto name = find(option.name);
        if (name != arguments.end() && name + 1 != arguments.end())
            result.*option.value = *(name + 1);
    }
    return result;
}

RunMode runModeOf(const CommandLine& commandLine) noexcept
{
    if (commandLine.install)
        return RunMode::Install;
    return commandLine.uninstall ? RunMode::Uninstall : RunMode::Interactive;
}

std::uint32_t processIdFrom(std::wstring_view text) noexcept
{
    const std::wstring_view digits = vela::trimmed(text);
    std::uint64_t id = 0;
    for (const wchar_t c : digits) {
        if (!vela::isDigit(c))
            return 0;
        id = id * 10 + static_cast<std::uint64_t>(c - L'0');
        if (id > std::numeric_limits<std::uint32_t>::max())
            return 0;
    }
    return static_cast<std::uint32_t>(id);
}

} // namespace setup
