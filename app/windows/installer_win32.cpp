// The Windows Installer: asked about products through its library, run through its program.
#include "app/windows/setup_effects_win32.h"

#include "app/run/identity.h"
#include "app/run/installer_command.h"
#include "app/run/paths.h"
#include "app/windows/installer_library_win32.h"

#include <shellapi.h>

namespace setup {
namespace {

class AwakeGuard {
public:
    AwakeGuard() noexcept { ::SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED); }
    AwakeGuard(const AwakeGuard&) = delete;
    AwakeGuard& operator=(const AwakeGuard&) = delete;
    ~AwakeGuard() { ::SetThreadExecutionState(ES_CONTINUOUS); }
};

std::wstring systemFolder()
{
    std::array<wchar_t, MAX_PATH + 1> folder{};
    const UINT length = ::GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() ? std::wstring(folder.data(), length) : std::wstring();
}

WindowsOutcome<std::uint32_t> runAndWait(const std::wstring& program, const std::wstring& parameters,
                                         const std::wstring& folder)
{
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    // Whatever fails is reported by its code, never by a box of the shell.
    info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    info.lpVerb = L"open";
    info.lpFile = program.c_str();
    info.lpParameters = parameters.c_str();
    info.lpDirectory = folder.c_str();
    info.nShow = SW_SHOWNORMAL;
    const BOOL started = ::ShellExecuteExW(&info);
    const DWORD error = ::GetLastError();
    const vela::OwnedKernelObject process(started ? info.hProcess : nullptr);
    if (!process)
        return vela::Failure{error};
    const AwakeGuard awake;
    ::WaitForSingleObject(process.get(), INFINITE);
    DWORD exitCode = 0;
    if (!::GetExitCodeProcess(process.get(), &exitCode))
        return vela::Failure{kNoError}; // it ran, and whatever Windows says now is not its answer
    return exitCode;
}

} // namespace

WindowsOutcome<std::wstring> WindowsEffects::relatedProduct(std::uint32_t index)
{
    using EnumRelatedProducts =
        UINT WINAPI(LPCWSTR upgradeCode, DWORD reserved, DWORD index, LPWSTR productCode);
    static const auto enumerate = installerLibrary().function<EnumRelatedProducts>("MsiEnumRelatedProductsW");
    // A product code is 38 characters.
    std::array<wchar_t, 39> code{};
    const UINT error =
        enumerate ? enumerate(kUpgradeCode.data(), 0, index, code.data()) : ERROR_NO_MORE_ITEMS;
    if (error != ERROR_SUCCESS)
        return vela::Failure{error};
    return code.data();
}

WindowsOutcome<std::uint32_t> WindowsEffects::runInstaller(const std::wstring& parameters)
{
    // By its full path, and working in the system folder: nothing that lies beside the setup can be meant.
    const std::wstring folder = systemFolder();
    if (folder.empty())
        return vela::Failure{ERROR_PATH_NOT_FOUND};
    return runAndWait(joinPath(folder, kInstallerProgram), parameters, folder);
}

} // namespace setup
