// The installed application's file: reading its version and starting it.
#include "app/windows/setup_effects_win32.h"

#include "app/windows/reachable_path_win32.h"

#include "vela/library_win32.h"

#include <cstddef>

#include <shellapi.h>

namespace setup {
namespace {

// The error mode is inherited: without this the application would never report its crashes either.
class PlainErrorMode {
public:
    PlainErrorMode() noexcept : previous_(::SetErrorMode(0)) {}
    PlainErrorMode(const PlainErrorMode&) = delete;
    PlainErrorMode& operator=(const PlainErrorMode&) = delete;
    ~PlainErrorMode() { ::SetErrorMode(previous_); }

private:
    UINT previous_;
};

std::vector<std::byte> versionResource(const vela::SystemLibrary& library, const std::wstring& path)
{
    const auto sizeOf = library.function<DWORD WINAPI(LPCWSTR, LPDWORD)>("GetFileVersionInfoSizeW");
    const auto read = library.function<BOOL WINAPI(LPCWSTR, DWORD, DWORD, LPVOID)>("GetFileVersionInfoW");
    if (!sizeOf || !read)
        return {};
    DWORD ignored = 0;
    std::vector<std::byte> resource(sizeOf(path.c_str(), &ignored));
    if (resource.empty() || !read(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()))
        return {};
    return resource;
}

} // namespace

std::optional<ProductVersion> WindowsEffects::productVersion(const std::wstring& path)
{
    constexpr DWORD kSignature = 0xFEEF04BD;
    const vela::SystemLibrary library(L"version.dll");
    const auto query = library.function<BOOL WINAPI(LPCVOID, LPCWSTR, LPVOID*, PUINT)>("VerQueryValueW");
    const std::vector<std::byte> resource = versionResource(library, reachablePath(path));
    void* block = nullptr;
    UINT size = 0;
    if (!query || resource.empty() || !query(resource.data(), L"\\", &block, &size) || !block ||
        size < sizeof(VS_FIXEDFILEINFO))
        return std::nullopt;
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(block);
    if (fixed.dwSignature != kSignature)
        return std::nullopt;
    return ProductVersion{HIWORD(fixed.dwProductVersionMS), LOWORD(fixed.dwProductVersionMS),
                          HIWORD(fixed.dwProductVersionLS), LOWORD(fixed.dwProductVersionLS)};
}

WindowsError WindowsEffects::startHidden(const std::wstring& commandLine, const std::wstring& folder)
{
    std::wstring writableCommandLine = commandLine; // CreateProcessW writes into it
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_HIDE;
    PROCESS_INFORMATION process{};
    const PlainErrorMode errorMode;
    if (!::CreateProcessW(nullptr, writableCommandLine.data(), nullptr, nullptr, FALSE,
                          CREATE_NO_WINDOW | DETACHED_PROCESS, nullptr,
                          folder.empty() ? nullptr : folder.c_str(), &startup, &process))
        return ::GetLastError();
    const vela::OwnedKernelObject owners[] = {vela::OwnedKernelObject(process.hProcess),
                                              vela::OwnedKernelObject(process.hThread)};
    return kNoError;
}

WindowsError WindowsEffects::startVisible(const std::wstring& program, const std::wstring& folder)
{
    constexpr INT_PTR kLargestError = 32;
    // This process has the foreground, from the notice just closed; the application may take it.
    ::AllowSetForegroundWindow(ASFW_ANY);
    const PlainErrorMode errorMode;
    const auto answer = reinterpret_cast<INT_PTR>(
        ::ShellExecuteW(nullptr, L"open", program.c_str(), nullptr, folder.c_str(), SW_SHOWNORMAL));
    if (answer > kLargestError)
        return kNoError;
    return answer != 0 ? static_cast<WindowsError>(answer) : ERROR_NOT_ENOUGH_MEMORY;
}

} // namespace setup
