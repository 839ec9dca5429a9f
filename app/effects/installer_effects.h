// What the setup asks of the Windows Installer, and the package that it hands over.
#pragma once

#include "app/effects/windows_error.h"

#include <memory>
#include <string>

namespace setup {

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

class InstallerEffects {
public:
    InstallerEffects() = default;
    InstallerEffects(const InstallerEffects&) = delete;
    InstallerEffects& operator=(const InstallerEffects&) = delete;

    virtual RelatedProduct relatedProduct(std::uint32_t index) = 0;
    virtual PackageOutcome extractPackage(const std::wstring& target) = 0;
    virtual PinOutcome pinPackage(const std::wstring& path) = 0;
    virtual InstallerExit runInstaller(const std::wstring& parameters) = 0; // returns when it has ended

protected:
    ~InstallerEffects() = default; // borrowed by whoever uses it, never owned
};

} // namespace setup
