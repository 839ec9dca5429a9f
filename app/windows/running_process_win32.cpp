// Processes: the own one and others; listing them, asking their windows, waiting for their end, ending them.
#include "app/windows/setup_effects_win32.h"

#include <tlhelp32.h>

namespace setup {
namespace {

struct WindowRequest {
    DWORD processId;
    UINT message;
    bool found;
};

BOOL CALLBACK postIfOwn(HWND window, LPARAM parameter) noexcept
{
    auto& request = *reinterpret_cast<WindowRequest*>(parameter);
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    if (processId == request.processId && !::GetWindow(window, GW_OWNER)) {
        ::PostMessageW(window, request.message, 0, 0);
        request.found = true;
    }
    return TRUE;
}

class WindowsProcess final : public RunningProcess {
public:
    WindowsProcess(vela::OwnedKernelObject process, DWORD id) noexcept : process_(std::move(process)), id_(id)
    {
    }

    bool postToWindows(std::uint32_t message) override
    {
        WindowRequest request{id_, message, false};
        ::EnumWindows(postIfOwn, reinterpret_cast<LPARAM>(&request));
        return request.found;
    }

    WaitResult wait(std::uint32_t milliseconds) override
    {
        switch (::WaitForSingleObject(process_.get(), milliseconds)) {
        case WAIT_OBJECT_0: return WaitResult::Ended;
        case WAIT_TIMEOUT: return WaitResult::TimedOut;
        default: return WaitResult::Failed;
        }
    }

    WindowsError terminate() override
    {
        return ::TerminateProcess(process_.get(), 0) ? kNoError : ::GetLastError();
    }

private:
    vela::OwnedKernelObject process_;
    DWORD id_;
};

} // namespace

std::uint32_t WindowsEffects::ownProcessId() { return ::GetCurrentProcessId(); }

std::vector<ProcessEntry> WindowsEffects::runningProcesses()
{
    const vela::OwnedFile snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snapshot)
        return {};
    std::vector<ProcessEntry> processes;
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = ::Process32FirstW(snapshot.get(), &entry); more;
         more = ::Process32NextW(snapshot.get(), &entry))
        processes.push_back({entry.th32ProcessID, entry.szExeFile});
    return processes;
}

WindowsOutcome<std::unique_ptr<RunningProcess>> WindowsEffects::openProcess(std::uint32_t id,
                                                                            ProcessAccess access)
{
    const DWORD rights = SYNCHRONIZE | (access == ProcessAccess::WaitAndTerminate ? PROCESS_TERMINATE : 0);
    vela::OwnedKernelObject process(::OpenProcess(rights, FALSE, id));
    if (!process)
        return vela::Failure{::GetLastError()};
    return std::make_unique<WindowsProcess>(std::move(process), id);
}

} // namespace setup
