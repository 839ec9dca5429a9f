// Everything the setup's decisions ask of the system, and nothing more: the order of a run, which sentence a
// failing step gives and what no longer runs after it are plain code over this interface. Windows does the
// effects in the product; a recording stand-in that can fail at any step does them in the tests.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace setup {

// A GetLastError value or the bits of a failed HRESULT; 0 means done.
using WindowsError = std::uint32_t;
inline constexpr WindowsError kNoError = 0;
inline constexpr WindowsError kErrorFileNotFound = 2;
inline constexpr WindowsError kErrorInvalidData = 13;
inline constexpr WindowsError kErrorGenFailure = 31;
inline constexpr WindowsError kWaitTimeout = 258;
inline constexpr WindowsError kErrorNoMoreItems = 259;
inline constexpr WindowsError kErrorRevisionMismatch = 1306;

enum class PackageFault : std::uint8_t { None, Absent, Unreadable, NotCreated, NotWritten };

struct PackageOutcome {
    PackageFault fault = PackageFault::None;
    WindowsError error = kNoError; // not 0 when there is a fault
};

// While it lives, nobody can change, replace or delete the package file.
class PackagePin {
public:
    PackagePin() = default;
    PackagePin(const PackagePin&) = delete;
    PackagePin& operator=(const PackagePin&) = delete;
    virtual ~PackagePin() = default;
};

struct PinOutcome {
    std::unique_ptr<PackagePin> pin; // null when the file is not, or not for certain, the embedded package
    WindowsError error = kNoError;
};

struct RelatedProduct {
    WindowsError error = kNoError;
    std::wstring code;
};

// `code` is the installer's exit code when it ran to its end, else the Windows error that kept it from that.
struct InstallerExit {
    bool finished = false;
    std::uint32_t code = 0;
};

enum class WaitOutcome : std::uint8_t { Ended, TimedOut, Failed };

// A process held open: its id cannot pass to another one meanwhile.
class RunningProcess {
public:
    RunningProcess() = default;
    RunningProcess(const RunningProcess&) = delete;
    RunningProcess& operator=(const RunningProcess&) = delete;
    virtual ~RunningProcess() = default;

    // Posts `message` to every unowned top-level window; true when there was at least one.
    virtual bool postToWindows(std::uint32_t message) = 0;
    virtual WaitOutcome wait(std::uint32_t milliseconds) = 0;
    virtual WindowsError terminate() = 0;
};

struct OpenedProcess {
    std::unique_ptr<RunningProcess> process; // null when it is gone or may not be opened
    WindowsError error = kNoError;
};

enum class ProcessAccess : std::uint8_t { Wait, WaitAndTerminate };

struct ProcessEntry {
    std::uint32_t id = 0;
    std::wstring fileName; // without its folder
};

enum class KnownFolder : std::uint8_t { Desktop, Startup, LocalAppData };

struct ShellLink {
    std::wstring link; // full path of the .lnk file
    std::wstring target;
    std::wstring_view arguments;
    std::wstring workingFolder;
    std::wstring_view description;
};

using ProductVersion = std::array<std::uint16_t, 4>;

class SetupEffects {
public:
    SetupEffects() = default;
    SetupEffects(const SetupEffects&) = delete;
    SetupEffects& operator=(const SetupEffects&) = delete;
    virtual ~SetupEffects() = default;

    // The process and its surroundings.
    virtual std::uint32_t ownProcessId() = 0;
    virtual std::wstring programFolder() = 0; // empty when Windows does not tell
    virtual std::wstring tempFolder() = 0;
    virtual std::wstring knownFolder(KnownFolder folder) = 0;          // empty when Windows gives none
    virtual std::wstring environmentVariable(const wchar_t* name) = 0; // empty when unset
    virtual bool fileExists(const std::wstring& path) = 0;
    virtual void writeLogLine(const std::wstring& line) = 0;

    // The package and the Windows Installer.
    virtual RelatedProduct relatedProduct(std::uint32_t index) = 0;
    virtual PackageOutcome extractPackage(const std::wstring& target) = 0;
    virtual PinOutcome pinPackage(const std::wstring& path) = 0;
    virtual WindowsError writeSkins(const std::wstring& target) = 0; // the embedded document, over any file
    virtual InstallerExit runInstaller(const std::wstring& parameters) = 0; // returns when it has ended

    // What follows a successful install.
    virtual WindowsError createFolders(const std::wstring& folder) = 0; // with all missing parents
    virtual WindowsError copySetup(const std::wstring& target) = 0;     // the running program's own file
    virtual std::int32_t createShellLink(const ShellLink& link) = 0;    // an HRESULT
    virtual WindowsError deleteFile(const std::wstring& path) = 0;
    virtual void notifyShellChanged() = 0;
    virtual std::optional<ProductVersion> productVersion(const std::wstring& path) = 0;
    virtual WindowsError startHidden(const std::wstring& commandLine, const std::wstring& folder) = 0;
    virtual WindowsError startVisible(const std::wstring& program, const std::wstring& folder) = 0;

    // Running copies of the application.
    virtual std::vector<ProcessEntry> runningProcesses() = 0;
    virtual OpenedProcess openProcess(std::uint32_t id, ProcessAccess access) = 0;
};

} // namespace setup
