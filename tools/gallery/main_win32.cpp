// Draws the gallery: every sheet of it, or those whose names contain a given word.
//   gallery OUTPUT-FOLDER SKINS-DOCUMENT [WORD]
#include "tools/gallery/gallery_gdi.h"
#include "vela/theme/json.h"
#include "vela/theme/utf8.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <windows.h>

#include <objbase.h>

namespace {

using SheetDrawer = bool (*)(const std::wstring& path);

constexpr std::pair<const wchar_t*, SheetDrawer> kSheets[] = {
    {L"shapes", gallery::drawShapeSheet}, {L"gradients", gallery::drawGradientSheet},
    {L"layers", gallery::drawLayerSheet}, {L"glyphs", gallery::drawGlyphSheet},
    {L"type", gallery::drawTypeSheet},
};

std::vector<vela::SkinDefinition> readSkins(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    vela::JsonDocument document;
    document.read(vela::decodeUtf8(bytes));
    return vela::skinsFromDocument(document.root());
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    if (count < 3 || FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        std::fputs("gallery OUTPUT-FOLDER SKINS-DOCUMENT [WORD]\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    const std::wstring word = count > 3 ? arguments[3] : L"";
    int failed = 0;
    const auto draw = [&](const std::wstring& name, const auto& drawSheet) {
        if (name.find(word) == std::wstring::npos)
            return;
        const bool drawn = drawSheet((folder / (name + L".png")).wstring());
        std::printf("%ls%s\n", name.c_str(), drawn ? "" : ": could not be written");
        failed += !drawn;
    };
    std::filesystem::create_directories(folder);
    for (const auto& [name, drawSheet] : kSheets)
        draw(name, drawSheet);
    const std::vector<vela::SkinDefinition> skins = readSkins(arguments[2]);
    draw(L"front", [&](const std::wstring& path) { return gallery::drawFrontSheet(path, skins); });
    for (const vela::SkinDefinition& skin : skins)
        draw(L"skin-" + skin.id,
             [&](const std::wstring& path) { return gallery::drawSkinSheet(path, skin); });
    if (skins.empty())
        std::fputs("no skins in that document\n", stderr);
    return failed > 0 || skins.empty();
}
