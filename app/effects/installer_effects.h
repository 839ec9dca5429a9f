// What the setup asks of the Windows Installer, and the package that it hands over.
#pragma once

#include "app/effects/windows_error.h"

#include <memory>
#include <string>

namespace setup {

enum class PackageFault : std::uint8_t { Absent, Unreadable, NotCreated, NotWritten };

struct PackageFailure {
    PackageFault fault;
    WindowsError error;
};

// While it lives, nobody can change, replace or delete the package file.
class PackagePin {
public:
    PackagePin() = default;
    PackagePin(const PackagePin&) = delete;
    PackagePin& operator=(const PackagePin&) = delete;
    virtual ~PackagePin() = default;
};

class InstallerEffects {
public:
    InstallerEffects() = default;
    InstallerEffects(const InstallerEffects&) = delete;
    InstallerEffects& operator=(const InstallerEffects&) = delete;

    // Its product code.
    virtual WindowsOutcome<std::wstring> relatedProduct(std::uint32_t index) = 0;
    virtual vela::Outcome<vela::Done, PackageFailure> extractPackage(const std::wstring& target) = 0;
    // Fails when the file is not, or not for certain, the embedded package.
    virtual WindowsOutcome<std::unique_ptr<PackagePin>> pinPackage(const std::wstring& path) = 0;
    // Returns when the installer has ended: its exit code, or what kept it from running to its end.
    virtual WindowsOutcome<std::uint32_t> runInstaller(const std::wstring& parameters) = 0;

protected:
    ~InstallerEffects() = default; // borrowed by whoever uses it, never owned
};

} // namespace setup
