#include "vela/theme/skins/skin_files.h"

#include "vela/text.h"
#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"

#include <iterator>
#include <utility>

namespace vela {

namespace {

std::vector<SkinDefinition> loadSkinsFromFile(SkinHost& host, const std::wstring& path)
{
    const std::optional<std::string> bytes = host.readFile(path, kMaxSkinFileSize);
    JsonDocument document;
    if (!bytes || !document.read(decodeUtf8(*bytes)))
        return {};
    return skinsFromDocument(document.root());
}

} // namespace

bool isSkinFileName(std::wstring_view name) noexcept
{
    constexpr std::wstring_view kExtension = L".json";
    return name.size() > kExtension.size() &&
           equalsIgnoringAsciiCase(name.substr(name.size() - kExtension.size()), kExtension);
}

std::vector<SkinDefinition> loadSkinsFromFolder(SkinHost& host, const std::wstring& folder)
{
    std::vector<SkinDefinition> skins;
    std::wstring path = folder + L'\\';
    for (const std::wstring& name : host.fileNames(folder)) {
        if (!isSkinFileName(name))
            continue;
        path.resize(folder.size() + 1);
        path += name;
        std::vector<SkinDefinition> found = loadSkinsFromFile(host, path);
        skins.insert(skins.end(), std::make_move_iterator(found.begin()),
                     std::make_move_iterator(found.end()));
    }
    return skins;
}

} // namespace vela
