#include "app/windows/process_win32.h"

#include "app/run/exit_code.h"
#include "vela/owned_win32.h"

#include <exception>

#include <shellapi.h>

namespace setup {
namespace {

struct LocalMemoryTraits {
    using Handle = wchar_t**;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle memory) noexcept { ::LocalFree(memory); }
};
using OwnedArguments = vela::Owned<LocalMemoryTraits>;

// A path can have at most 32767 units.
constexpr std::size_t kLongestPath = 32768;

// Known since Windows 11 22H2 and not in this toolchain's headers:
// PROCESS_MITIGATION_REDIRECTION_TRUST_POLICY.
constexpr int kRedirectionTrustPolicy = 16;
constexpr DWORD kEnforceRedirectionTrust = 1;

void enforceRedirectionTrust() noexcept
{
    using SetPolicy = BOOL WINAPI(int policy, void* buffer, SIZE_T size);
    const HMODULE kernel = ::GetModuleHandleW(L"kernel32.dll");
    const auto address = reinterpret_cast<void (*)()>(::GetProcAddress(kernel, "SetProcessMitigationPolicy"));
    DWORD flags = kEnforceRedirectionTrust;
    // An older Windows refuses the unknown policy, which leaves things as they were.
    if (const auto setPolicy = reinterpret_cast<SetPolicy*>(address))
        setPolicy(kRedirectionTrustPolicy, &flags, sizeof flags);
}

} // namespace

void hardenProcess() noexcept
{
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    ::SetDllDirectoryW(L"");
    ::HeapSetInformation(nullptr, HeapEnableTerminationOnCorruption, nullptr, 0);
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    enforceRedirectionTrust();
    // The C runtime's own way out of an unhandled exception is a message box.
    std::set_terminate([] { ::TerminateProcess(::GetCurrentProcess(), kExitInstallFailed); });
}

std::vector<std::wstring> processArguments()
{
    int count = 0;
    const OwnedArguments arguments(::CommandLineToArgvW(::GetCommandLineW(), &count));
    if (!arguments || count < 1)
        return {};
    return {arguments.get() + 1, arguments.get() + count};
}

std::wstring programPath()
{
    for (std::wstring path(MAX_PATH, L'\0'); path.size() <= kLongestPath; path.resize(path.size() * 2)) {
        const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
            break;
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
    }
    return {};
}

} // namespace setup
