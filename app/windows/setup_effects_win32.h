// The setup's effects on a real machine, used by one thread at a time. Each group of them has a file of its
// own: folders, files, resources, installer, shell, app_start, running_process, setup_log.
#pragma once

#include "app/effects/setup_effects.h"

#include "vela/owned_win32.h"

namespace setup {

class WindowsEffects final : public SetupEffects {
public:
    // `module` carries the package.
    explicit WindowsEffects(HMODULE module) noexcept : module_(module) {}

    // Folders, files and what the program carries for them.
    std::wstring programFolder() override;
    std::wstring tempFolder() override;
    std::wstring knownFolder(KnownFolder folder) override;
    std::wstring environmentVariable(const wchar_t* name) override;
    bool fileExists(const std::wstring& path) override;
    WindowsError createFolders(const std::wstring& folder) override;
    WindowsError copySetup(const std::wstring& target) override;
    WindowsError writeSkins(const std::wstring& target) override;
    WindowsError deleteFile(const std::wstring& path) override;
    std::optional<ProductVersion> productVersion(const std::wstring& path) override;

    // The Windows Installer and its package.
    WindowsOutcome<std::wstring> relatedProduct(std::uint32_t index) override;
    vela::Outcome<vela::Done, PackageFailure> extractPackage(const std::wstring& target) override;
    WindowsOutcome<std::unique_ptr<PackagePin>> pinPackage(const std::wstring& path) override;
    WindowsOutcome<std::uint32_t> runInstaller(const std::wstring& parameters) override;

    // The shell.
    std::int32_t createShellLink(const ShellLink& link) override;
    void notifyShellChanged() override;

    // Processes.
    std::uint32_t ownProcessId() override;
    WindowsError startHidden(const std::wstring& commandLine, const std::wstring& folder) override;
    WindowsError startVisible(const std::wstring& program, const std::wstring& folder) override;
    std::vector<ProcessEntry> runningProcesses() override;
    WindowsOutcome<std::unique_ptr<RunningProcess>> openProcess(std::uint32_t id,
                                                                ProcessAccess access) override;

    void writeLogLine(const std::wstring& line) override;

private:
    HMODULE module_;
    vela::OwnedFile log_; // opened by the first line
};

} // namespace setup
