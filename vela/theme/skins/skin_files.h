// What the skin catalogue asks of the machine, and the skins of one folder read through it.
#pragma once

#include "vela/theme/derive/high_contrast.h"
#include "vela/theme/skins/skin_document.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

// The machine as the catalogue sees it; tests put one of their own in its place.
class SkinHost {
public:
    SkinHost() = default;
    SkinHost(const SkinHost&) = delete;
    SkinHost& operator=(const SkinHost&) = delete;
    virtual ~SkinHost() = default;

    // The names of the files in a folder, in the file system's own order; none when the folder is missing.
    virtual std::vector<std::wstring> fileNames(const std::wstring& folder) = 0;

    // The whole file; empty when it cannot be read or is larger than the limit, in bytes.
    virtual std::optional<std::string> readFile(const std::wstring& path, std::size_t limit) = 0;

    // The user's choice for applications: 0 is dark, anything else light. Empty when it cannot be read.
    virtual std::optional<std::uint32_t> appsUseLightTheme() = 0;

    // The user's colours while the system is in high-contrast mode, empty otherwise.
    virtual std::optional<SystemColors> highContrastColors() { return std::nullopt; }
};

// In bytes: many times what hundreds of skins need. A larger file counts as one that cannot be read.
inline constexpr std::size_t kMaxSkinFileSize = std::size_t{8} << 20;

// Whether the name ends in ".json", in any case, behind at least one other character.
bool isSkinFileName(std::wstring_view name) noexcept;

// The skins of every skin file in the folder, in the order of the files. A file that cannot be read or is not
// JSON contributes nothing.
std::vector<SkinDefinition> loadSkinsFromFolder(SkinHost& host, const std::wstring& folder);

} // namespace vela
