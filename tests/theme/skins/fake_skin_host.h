// A machine for skin catalogues.
#pragma once

#include "vela/theme/skins/skin_files.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vela {

// Folders and files in memory; a file without content cannot be opened.
class FakeSkinHost : public SkinHost {
public:
    struct File {
        std::wstring name;
        std::optional<std::string> bytes;
    };

    std::vector<std::wstring> fileNames(const std::wstring& folder) override
    {
        std::vector<std::wstring> names;
        for (const File& file : folders[folder])
            names.push_back(file.name);
        return names;
    }

    std::optional<std::string> readFile(const std::wstring& path, std::size_t limit) override
    {
        for (const auto& [folder, files] : folders) {
            for (const File& file : files) {
                if (folder + L'\\' + file.name == path && file.bytes && file.bytes->size() <= limit)
                    return file.bytes;
            }
        }
        return std::nullopt;
    }

    std::optional<std::uint32_t> appsUseLightTheme() override { return lightTheme; }
    std::optional<SystemColors> highContrastColors() override { return contrastColors; }

    std::map<std::wstring, std::vector<File>> folders;
    std::optional<std::uint32_t> lightTheme;
    std::optional<SystemColors> contrastColors;
};

// A document of one skin.
inline std::string jsonOf(const std::string& id, const std::string& name)
{
    return R"({"id": ")" + id + R"(", "name": ")" + name + R"("})";
}

} // namespace vela
