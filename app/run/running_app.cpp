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
    const OpenedProcess opened = processes.openProcess(id, ProcessAccess::WaitAndTerminate);
    if (!opened.process)
        return opened.error;
    const WindowsError error = opened.process->terminate();
    if (error == kNoError)
        opened.process->wait(kTerminateMilliseconds);
    return error;
}

void closeProcess(SetupEffects& effects, std::uint32_t id)
{
    const std::wstring idText = vela::decimalText(id);
    const OpenedProcess opened = effects.openProcess(id, ProcessAccess::Wait);
    if (!opened.process) {
        noteStep(effects, L"open running application", opened.error, idText);
        return;
    }
    const bool asked = opened.process->postToWindows(kCloseRequest);
    const WaitOutcome outcome = asked ? opened.process->wait(kCloseMilliseconds) : WaitOutcome::TimedOut;
    if (outcome != WaitOutcome::TimedOut) {
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
    const OpenedProcess opened = effects.openProcess(id, ProcessAccess::Wait);
    const bool stays = opened.process && opened.process->wait(milliseconds) == WaitOutcome::TimedOut;
    noteStep(effects, L"wait for process", stays ? kWaitTimeout : opened.error, vela::decimalText(id));
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
