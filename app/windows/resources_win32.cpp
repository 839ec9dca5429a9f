// What this program carries as resources, written to files: the application's installer package and the
// skins.
#include "app/windows/setup_effects_win32.h"

#include "app/windows/reachable_path_win32.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>

namespace setup {
namespace {

constexpr WORD kPackageResource = 3001;
constexpr WORD kSkinsResource = 3002;

// Straight from the mapped program: a resource is never copied in memory.
using EmbeddedFile = vela::Outcome<std::span<const std::byte>, PackageFailure>;

vela::Failure<PackageFailure> failed(PackageFault fault, WindowsError error) noexcept
{
    return {{fault, error}};
}

// The error of the call that has just failed, or a stand-in when it left none: a fault is never "done".
WindowsError lastErrorOr(WindowsError fallback) noexcept
{
    const DWORD error = ::GetLastError();
    return error != kNoError ? error : fallback;
}

EmbeddedFile findResource(HMODULE module, WORD id) noexcept
{
    ::SetLastError(kNoError);
    const HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(id), RT_RCDATA);
    if (!resource)
        return failed(PackageFault::Absent, lastErrorOr(ERROR_RESOURCE_NAME_NOT_FOUND));
    const HGLOBAL loaded = ::LoadResource(module, resource);
    const DWORD size = ::SizeofResource(module, resource);
    const void* const data = loaded ? ::LockResource(loaded) : nullptr;
    if (!data || size == 0)
        return failed(PackageFault::Unreadable, lastErrorOr(ERROR_INVALID_DATA));
    return std::span(static_cast<const std::byte*>(data), size);
}

// In one write, over whatever is there.
vela::Outcome<vela::Done, PackageFailure> writeWhole(std::span<const std::byte> bytes,
                                                     const std::wstring& target, DWORD attributes)
{
    const vela::OwnedFile file(::CreateFileW(reachablePath(target).c_str(), GENERIC_WRITE, 0, nullptr,
                                             CREATE_ALWAYS, attributes, nullptr));
    if (!file)
        return failed(PackageFault::NotCreated, ::GetLastError());
    const auto size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    if (!::WriteFile(file.get(), bytes.data(), size, &written, nullptr))
        return failed(PackageFault::NotWritten, ::GetLastError());
    if (written != size)
        return failed(PackageFault::NotWritten, ERROR_DISK_FULL);
    return vela::Done{};
}

// Chunk by chunk, so that comparing costs no memory to speak of.
WindowsError compareWithFile(std::span<const std::byte> expected, HANDLE file)
{
    constexpr std::size_t kChunk = 256 * 1024;
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file, &size))
        return ::GetLastError();
    if (static_cast<std::size_t>(size.QuadPart) != expected.size())
        return ERROR_FILE_CORRUPT;
    const auto chunk = std::make_unique_for_overwrite<std::byte[]>(kChunk);
    while (!expected.empty()) {
        const auto wanted = static_cast<DWORD>(std::min(kChunk, expected.size()));
        DWORD got = 0;
        if (!::ReadFile(file, chunk.get(), wanted, &got, nullptr))
            return ::GetLastError();
        if (got != wanted || std::memcmp(chunk.get(), expected.data(), got) != 0)
            return ERROR_FILE_CORRUPT;
        expected = expected.subspan(got);
    }
    return kNoError;
}

class FilePin final : public PackagePin {
public:
    explicit FilePin(vela::OwnedFile file) noexcept : file_(std::move(file)) {}

private:
    vela::OwnedFile file_;
};

} // namespace

vela::Outcome<vela::Done, PackageFailure> WindowsEffects::extractPackage(const std::wstring& target)
{
    const EmbeddedFile package = findResource(module_, kPackageResource);
    if (!package)
        return vela::Failure{package.error()};
    return writeWhole(package.value(), target, FILE_ATTRIBUTE_TEMPORARY);
}

WindowsError WindowsEffects::writeSkins(const std::wstring& target)
{
    const EmbeddedFile skins = findResource(module_, kSkinsResource);
    if (!skins)
        return skins.error().error;
    const auto written = writeWhole(skins.value(), target, FILE_ATTRIBUTE_NORMAL);
    return written ? kNoError : written.error().error;
}

WindowsOutcome<std::unique_ptr<PackagePin>> WindowsEffects::pinPackage(const std::wstring& path)
{
    const EmbeddedFile package = findResource(module_, kPackageResource);
    if (!package)
        return vela::Failure{package.error().error};
    vela::OwnedFile file(::CreateFileW(reachablePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file)
        return vela::Failure{::GetLastError()};
    if (const WindowsError error = compareWithFile(package.value(), file.get()))
        return vela::Failure{error};
    return std::make_unique<FilePin>(std::move(file));
}

} // namespace setup
