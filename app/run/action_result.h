// The outcome of an install or uninstall run, and the text in which the user reads it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace setup {

struct SetupActionResult {
    bool success = false;
    std::uint32_t exitCode = 0; // of the last installer run; 0 if none ran or it could not be read
    std::wstring phase;
    std::wstring logPath; // the installer's log of this run
    std::wstring message; // why it failed, in Czech; empty on success
};

// `successText` unchanged, or the failure line by line: phase, exit code, sentence, log.
std::wstring composeResultText(const SetupActionResult& result, std::wstring_view successText);

// The result of a run that broke off in a way nobody foresaw.
SetupActionResult unexpectedFailure();

// Runs `task` and returns its result: where a run meets the rest of the program, whatever it throws (in
// practice: out of memory) becomes a result like any other.
template <typename Task>
SetupActionResult resultOf(const Task& task)
{
    try {
        return task();
    } catch (...) {
        return unexpectedFailure();
    }
}

} // namespace setup
