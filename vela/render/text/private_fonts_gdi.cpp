#include "vela/render/text/private_fonts_gdi.h"

#include "vela/folder_listing_win32.h"
#include "vela/render/text/font_choice.h"
#include "vela/resource_folders.h"

#include <algorithm>

#include <windows.h>

namespace vela {
namespace {

std::vector<std::wstring> registeredFiles()
{
    std::vector<std::wstring> files;
    const std::wstring& folder = resourceFolders().fonts;
    if (folder.empty())
        return files;
    for (const std::wstring& name : fileNamesIn(folder)) {
        std::wstring path = folder;
        path.append(1, L'\\').append(name);
        if (isFontFileName(name) && std::find(files.begin(), files.end(), path) == files.end() &&
            ::AddFontResourceExW(path.c_str(), FR_PRIVATE, nullptr) > 0)
            files.push_back(std::move(path));
    }
    return files;
}

} // namespace

const std::vector<std::wstring>& privateFontFiles()
{
    static const std::vector<std::wstring> files = registeredFiles();
    return files;
}

} // namespace vela
