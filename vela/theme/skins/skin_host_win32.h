// The machine as the catalogue sees it: files, the user's choice of light or dark, and the contrast theme.
#pragma once

#include "vela/theme/skins/skin_files.h"

namespace vela {

class WindowsSkinHost final : public SkinHost {
public:
    std::vector<std::wstring> fileNames(const std::wstring& folder) override;
    std::optional<std::string> readFile(const std::wstring& path, std::size_t limit) override;
    std::optional<std::uint32_t> appsUseLightTheme() override;
    std::optional<SystemColors> highContrastColors() override;
};

} // namespace vela
