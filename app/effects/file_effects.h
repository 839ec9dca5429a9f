// What the setup asks of the machine's files and of the folders they lie in.
#pragma once

#include "app/effects/product_version.h"
#include "app/effects/windows_error.h"

#include <optional>
#include <string>

namespace setup {

enum class KnownFolder : std::uint8_t { Desktop, Startup, LocalAppData };

class FileEffects {
public:
    FileEffects() = default;
    FileEffects(const FileEffects&) = delete;
    FileEffects& operator=(const FileEffects&) = delete;

    virtual std::wstring programFolder() = 0; // empty when Windows does not tell
    virtual std::wstring tempFolder() = 0;
    virtual std::wstring knownFolder(KnownFolder folder) = 0;          // empty when Windows gives none
    virtual std::wstring environmentVariable(const wchar_t* name) = 0; // empty when unset

    virtual bool fileExists(const std::wstring& path) = 0;
    virtual WindowsError createFolders(const std::wstring& folder) = 0; // with all missing parents
    virtual WindowsError copySetup(const std::wstring& target) = 0;     // the running program's own file
    virtual WindowsError writeSkins(const std::wstring& target) = 0; // the embedded document, over any file
    virtual WindowsError deleteFile(const std::wstring& path) = 0;
    virtual std::optional<ProductVersion> productVersion(const std::wstring& path) = 0;

protected:
    ~FileEffects() = default; // borrowed by whoever uses it, never owned
};

} // namespace setup
