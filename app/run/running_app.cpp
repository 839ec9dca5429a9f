#include "app/run/running_app.h"

#include "app/effects/step_log.h"
#include "app/run/identity.h"

#include "vela/text.h"

namespace setup {
namespace {

constexpr std::uint32_t kCloseMilliseconds = 5000;
constexpr std::uint32_t kTerminateMilliseconds = 1500;

WindowsError terminateProcess(ProcessEffects& processes, std::uint32_t id)
{
    const auto process = processes.openProcess(id, ProcessAccess::WaitAndTerminate);
    if (!process)
        return errorOf(process);
    const WindowsError error = process.value()->terminate();
    if (error == kNoError)
        process.value()->wait(kTerminateMilliseconds);
    return error;
}

void closeProcess(SetupEffects& effects, std::uint32_t id)
{
    const std::wstring idText = vela::decimalText(id);
    const auto process = effects.openProcess(id, ProcessAccess::Wait);
    if (!process) {
        noteStep(effects, L"open running application", errorOf(process), idText);
        return;
    }
    const bool asked = process.value()->postToWindows(kCloseRequest);
    const WaitResult result = asked ? process.value()->wait(kCloseMilliseconds) : WaitResult::TimedOut;
    if (result != WaitResult::TimedOut) {
        noteStep(effects, L"close running application", kNoError, idText);
        return;
    }
    // The process is still held open, so that its id cannot have passed to an innocent one.
    noteStep(effects, L"terminate running application", terminateProcess(effects, id), idText);
}

} // namespace

void waitForProcessExit(SetupEffects& effects, std::uint32_t id, std::uint32_t milliseconds)
{
    if (id == 0 || id == effects.ownProcessId())
        return;
    const auto process = effects.openProcess(id, ProcessAccess::Wait);
    const bool stays = process && process.value()->wait(milliseconds) == WaitResult::TimedOut;
    noteStep(effects, L"wait for process", stays ? kWaitTimeout : errorOf(process), vela::decimalText(id));
}

void closeRunningApp(SetupEffects& effects)
{
    const std::uint32_t ownId = effects.ownProcessId();
    for (const ProcessEntry& entry : effects.runningProcesses()) {
        if (entry.id != ownId && vela::equalsIgnoringAsciiCase(entry.fileName, kApplicationFile))
            closeProcess(effects, entry.id);
    }
}

} // namespace setup
