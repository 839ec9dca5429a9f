// Opens the showcase for people who write skins.
//   showcase [SKIN-ID] [SKIN-FILE.json] [DPI]
#include "tools/showcase/live_showcase_win32.h"

#include "app/dialogs/toolkit_texts.h"

#include "vela/resource_folders.h"
#include "vela/theme/skins/system_skins.h"

#include <cstdio>

#include <windows.h>

namespace {

std::wstring programFolder()
{
    std::wstring path(32768, L'\0'); // as long as a path can be
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

int runMessages()
{
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

} // namespace

int wmain(int count, wchar_t** words)
{
    vela::setToolkitTexts(setup::kToolkitTexts);
    const std::vector<std::wstring_view> given(words + 1, words + count);
    const std::optional<showcase::Arguments> arguments = showcase::parseArguments(given);
    if (!arguments) {
        std::fputs("showcase [SKIN-ID] [SKIN-FILE.json] [DPI]\n", stderr);
        return 2;
    }
    const std::wstring folder = programFolder();
    const std::wstring skins = folder + L"\\skins";
    vela::setResourceFolders({.skins = {skins}, .fonts = folder + L"\\fonts", .bitmaps = skins});
    showcase::LiveShowcase live(*arguments, vela::skinCatalog().skins(), skins);
    if (!live.open()) {
        std::fputs("the window cannot be opened\n", stderr);
        return 1;
    }
    return runMessages();
}
