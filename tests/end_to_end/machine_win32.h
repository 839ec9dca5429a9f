// What the end-to-end tests do to this Windows and see of it: programs are started, products enumerated,
// shortcuts read back through the shell. Everything here works alike on Windows and under Wine.
#pragma once

#include "vela/owned_win32.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

namespace end_to_end {

// Beside this test program: setups with other packages, the planted library.
std::wstring builtFile(std::wstring_view name);
// In the build's folder of packages.
std::wstring package(std::wstring_view name);
// In the source tree.
std::wstring source(std::wstring_view path);
// The finished TamberSetup.exe.
std::wstring finishedSetup();

std::wstring inQuotes(std::wstring_view text);

class Program {
public:
    // Working in the given folder, or in this program's when it is empty. A start that fails fails the test.
    Program(const std::wstring& path, std::wstring_view arguments, const std::wstring& folder = {});
    Program(Program&&) = default;
    Program& operator=(Program&&) = delete;
    // Ends the program: a failed test may have left it waiting.
    ~Program();

    DWORD id() const noexcept { return id_; }
    bool runs() const noexcept { return !endsWithin(0); }
    bool endsWithin(DWORD milliseconds) const noexcept;
    // The exit code. A program that does not end within two minutes is ended and fails the test.
    DWORD wait() const;
    void terminate() const noexcept;

private:
    vela::OwnedKernelObject process_;
    DWORD id_ = 0;
};

// Sets a variable for the programs started meanwhile.
class EnvironmentGuard {
public:
    EnvironmentGuard(const wchar_t* name, const std::wstring& value);
    EnvironmentGuard(const EnvironmentGuard&) = delete;
    EnvironmentGuard& operator=(const EnvironmentGuard&) = delete;
    ~EnvironmentGuard();

private:
    const wchar_t* name_;
    std::optional<std::wstring> previous_;
};

std::optional<std::wstring> environmentVariable(const wchar_t* name);

// The product codes under Tamber's upgrade code.
std::vector<std::wstring> installedProducts();
// Runs the installer itself, as a person would: its exit code.
DWORD runInstaller(const std::wstring& arguments);

std::wstring knownFolder(const GUID& id);
std::wstring startupShortcut();
std::wstring desktopShortcut();

struct Shortcut {
    std::wstring target;
    std::wstring arguments;
    std::wstring workingFolder;
    std::wstring description;
    std::wstring icon;
    int iconIndex;
    bool operator==(const Shortcut&) const = default;
};
std::optional<Shortcut> readShortcut(const std::wstring& path);

bool exists(const std::wstring& path) noexcept;
std::string contents(const std::wstring& path);
void writeFile(const std::wstring& path, std::string_view bytes);
void copyFile(const std::wstring& from, const std::wstring& to);
void removeTree(const std::wstring& path) noexcept;
// Whether another process could change or replace the file right now.
bool canBeWritten(const std::wstring& path);

std::vector<DWORD> processesNamed(std::wstring_view fileName);
// The top-level windows of a process, and those of them that a person could see.
std::vector<HWND> windowsOf(DWORD processId);
std::vector<HWND> visibleWindows(DWORD processId);
std::wstring titleOf(HWND window);

// How long a slow machine may take for what takes a moment otherwise.
inline constexpr DWORD kPatienceMilliseconds = 120'000;

// Looks again and again, for as long as patience lasts.
template <typename Condition>
bool eventually(Condition condition)
{
    const ULONGLONG end = ::GetTickCount64() + kPatienceMilliseconds;
    while (!condition()) {
        if (::GetTickCount64() > end)
            return false;
        ::Sleep(20);
    }
    return true;
}

// What the sample application wrote down about itself.
struct ApplicationStart {
    DWORD processId;
    int showCommand;
    std::wstring commandLine;
};
std::vector<ApplicationStart> applicationStarts();
bool applicationClosedItself(DWORD processId);

} // namespace end_to_end
