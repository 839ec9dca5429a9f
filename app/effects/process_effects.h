// What the setup asks of processes: its own, those that it starts, those that run already.
#pragma once

#include "app/effects/windows_error.h"

#include <memory>
#include <string>
#include <vector>

namespace setup {

enum class WaitResult : std::uint8_t { Ended, TimedOut, Failed };

// A process held open: its id cannot pass to another one meanwhile.
class RunningProcess {
public:
    RunningProcess() = default;
    RunningProcess(const RunningProcess&) = delete;
    RunningProcess& operator=(const RunningProcess&) = delete;
    virtual ~RunningProcess() = default;

    // Posts `message` to every unowned top-level window; true when there was at least one.
    virtual bool postToWindows(std::uint32_t message) = 0;
    virtual WaitResult wait(std::uint32_t milliseconds) = 0;
    virtual WindowsError terminate() = 0;
};

enum class ProcessAccess : std::uint8_t { Wait, WaitAndTerminate };

struct ProcessEntry {
    std::uint32_t id = 0;
    std::wstring fileName; // without its folder
};

class ProcessEffects {
public:
    ProcessEffects() = default;
    ProcessEffects(const ProcessEffects&) = delete;
    ProcessEffects& operator=(const ProcessEffects&) = delete;

    virtual std::uint32_t ownProcessId() = 0;
    virtual WindowsError startHidden(const std::wstring& commandLine, const std::wstring& folder) = 0;
    virtual WindowsError startVisible(const std::wstring& program, const std::wstring& folder) = 0;
    virtual std::vector<ProcessEntry> runningProcesses() = 0;
    // Fails when it is gone or may not be opened.
    virtual WindowsOutcome<std::unique_ptr<RunningProcess>> openProcess(std::uint32_t id,
                                                                        ProcessAccess access) = 0;

protected:
    ~ProcessEffects() = default; // borrowed by whoever uses it, never owned
};

} // namespace setup
