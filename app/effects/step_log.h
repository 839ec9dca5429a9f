// The setup's own log: one line a step with its outcome, because a failed copy, shortcut or version check
// does not show in the installer's log.
#pragma once

#include "app/effects/windows_error.h"

#include <string>
#include <string_view>

namespace setup {

class StepLog {
public:
    StepLog() = default;
    StepLog(const StepLog&) = delete;
    StepLog& operator=(const StepLog&) = delete;

    virtual void writeLogLine(const std::wstring& line) = 0;

protected:
    ~StepLog() = default; // borrowed by whoever uses it, never owned
};

// "step: ok" or "step: failed, error 5", followed by what it was about where that helps. HRESULTs are written
// as eight hexadecimal digits.
std::wstring stepLine(std::wstring_view step, WindowsError error, std::wstring_view about);

// Writes the line; true when the step has succeeded.
bool noteStep(StepLog& log, std::wstring_view step, WindowsError error, std::wstring_view about = {});

} // namespace setup
