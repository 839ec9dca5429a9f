// Draws the gallery: every sheet of it, or those whose names contain a given word.
//   gallery OUTPUT-FOLDER SKINS-DOCUMENT [WORD]
#include "app/dialogs/toolkit_texts.h"
#include "tools/gallery/gallery_gdi.h"
#include "tools/gallery/showcase_camera_gdi.h"
#include "tools/showcase_content/contrast_themes.h"
#include "vela/resource_folders.h"
#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <windows.h>

#include <objbase.h>

namespace {

using SheetDrawer = bool (*)(const std::wstring& path);

constexpr std::pair<const wchar_t*, SheetDrawer> kSheets[] = {
    {L"shapes", gallery::drawShapeSheet},
    {L"gradients", gallery::drawGradientSheet},
    {L"layers", gallery::drawLayerSheet},
    {L"icons", gallery::drawIconSheet},
    {L"type", gallery::drawTypeSheet},
    {L"material-presets", gallery::drawPresetSheet},
    {L"materials", gallery::drawNamedMaterialSheet},
};

std::vector<vela::SkinDefinition> readSkins(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    vela::JsonDocument document;
    document.read(vela::decodeUtf8(bytes));
    return vela::skinsFromDocument(document.root());
}

// The switches of the debugging overlay, each set by pressing F12 once more.
constexpr struct {
    const wchar_t* name;
    std::initializer_list<int> modifiers;
} kOverlays[] = {
    {L"overlay-1-basic", {}},
    {L"overlay-2-layout", {VK_CONTROL}},
    {L"overlay-3-contours", {VK_CONTROL}},
    {L"overlay-4-skin", {VK_CONTROL}},
    {L"overlay-5-with-ids", {VK_SHIFT}},
    {L"overlay-6-with-content", {VK_CONTROL, VK_SHIFT}},
};

// The window of the showcase: every page in every skin at every DPI, then with the debugging overlay.
template <typename Draw>
void drawShowcase(const std::vector<vela::SkinDefinition>& skins, const Draw& draw)
{
    gallery::ShowcaseCamera camera;
    for (const showcase::Page& page : showcase::pages()) {
        for (const std::int32_t dpi : gallery::kShowcaseDpis) {
            const std::wstring set = std::wstring(page.name) + L"-" + std::to_wstring(dpi);
            camera.aim(page, dpi);
            for (const vela::SkinDefinition& skin : skins)
                draw(set + L"-" + skin.id,
                     [&](const std::wstring& path) { return camera.shoot(path, skin); });
            draw(set, [&](const std::wstring& path) { return camera.saveContactSheet(path); });
        }
    }
    camera.aim(showcase::pages().front(), gallery::kDpi);
    // The mode is for the skin that the setup asks for.
    const auto windows = std::ranges::find(skins, L"win11-light", &vela::SkinDefinition::id);
    const vela::SkinDefinition& product = windows != skins.end() ? *windows : skins.front();
    for (const showcase::ContrastTheme& theme : showcase::kContrastThemes) {
        vela::StyleSheet styles = buildStyleSheet(product);
        applyHighContrast(styles, theme.colors);
        const std::wstring name = L"contrast-" + std::wstring(theme.name);
        draw(name, [&](const std::wstring& path) { return camera.shoot(path, name, std::move(styles)); });
    }
    for (const auto& [name, modifiers] : kOverlays) {
        camera.pressDebugKey({modifiers.begin(), modifiers.size()});
        draw(name, [&](const std::wstring& path) { return camera.shoot(path, skins.front()); });
    }
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    vela::setToolkitTexts(setup::kToolkitTexts);
    if (count < 3 || FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        std::fputs("gallery OUTPUT-FOLDER SKINS-DOCUMENT [WORD]\n", stderr);
        return 2;
    }
    vela::setResourceFolders({});
    const std::filesystem::path folder = arguments[1];
    const std::wstring word = count > 3 ? arguments[3] : L"";
    int failed = 0;
    const gallery::SheetList draw = [&](const std::wstring& name, const auto& drawSheet) {
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
    gallery::drawDialogs(skins, draw);
    if (!skins.empty())
        drawShowcase(skins, draw);
    if (skins.empty())
        std::fputs("no skins in that document\n", stderr);
    return failed > 0 || skins.empty();
}
