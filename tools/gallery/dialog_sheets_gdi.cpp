// The setup's dialogs: each alone at several scales, and all skins of one on a sheet.
#include "tools/gallery/gallery_gdi.h"

#include "tools/dialog_stage/dialog_stage_win32.h"
#include "tools/png_file_win32.h"

#include "vela/theme/skins/style_sections.h"

#include <windows.h>

namespace gallery {
namespace {

using stage::Act;
using stage::DialogStage;
using stage::Scene;

constexpr struct {
    Act act;
    const wchar_t* suffix;
} kActs[] = {
    {Act::Rest, L""}, {Act::Hot, L"-hot"}, {Act::Pressed, L"-pressed"}, {Act::Disabled, L"-disabled"}};

constexpr std::int32_t kDpis[] = {96, 144, 192};

stage::StyleSheetPointer stylesOf(const vela::SkinDefinition& skin)
{
    return std::make_shared<const vela::StyleSheet>(vela::buildStyleSheet(skin));
}

std::unique_ptr<vela::DibSurface> photograph(const Scene& scene, const vela::SkinDefinition& skin,
                                             std::int32_t dpi, Act act)
{
    DialogStage stage(scene, stylesOf(skin));
    if (!stage)
        return nullptr;
    stage.scaleTo(dpi);
    stage.play(act);
    if (act == Act::Focus)
        stage.focusNext();
    return stage.picture();
}

// A skin that turns into another one by itself would only show that one twice.
std::vector<vela::SkinDefinition> distinctSkins(std::vector<vela::SkinDefinition> skins)
{
    std::erase_if(skins, [](const vela::SkinDefinition& skin) { return skin.id.ends_with(L"-auto"); });
    return skins;
}

bool drawSkins(const std::wstring& path, const Scene& scene, const std::vector<vela::SkinDefinition>& skins,
               std::int32_t dpi)
{
    constexpr std::int32_t kColumns = 4;
    constexpr std::int32_t kGap = 20;
    constexpr std::int32_t kCaption = 24;
    std::vector<std::unique_ptr<vela::DibSurface>> pictures;
    vela::Size cell;
    for (const vela::SkinDefinition& skin : skins) {
        pictures.push_back(photograph(scene, skin, dpi, Act::Rest));
        if (!pictures.back())
            return false;
        cell = vela::largerOf(cell, pictures.back()->size());
    }
    const auto count = static_cast<std::int32_t>(pictures.size());
    const std::int32_t rows = (count + kColumns - 1) / kColumns;
    Sheet sheet({kGap + kColumns * (cell.width + kGap), kGap + rows * (cell.height + kCaption + kGap)}, {});
    for (std::int32_t i = 0; i < count; ++i) {
        const vela::DibSurface& picture = *pictures[static_cast<std::size_t>(i)];
        const vela::Point at{kGap + i % kColumns * (cell.width + kGap),
                             kGap + i / kColumns * (cell.height + kCaption + kGap)};
        sheet.caption({at.x, at.y, cell.width, kCaption}, skins[static_cast<std::size_t>(i)].name);
        ::BitBlt(sheet.dc(), at.x, at.y + kCaption, picture.size().width, picture.size().height, picture.dc(),
                 0, 0, SRCCOPY);
    }
    return sheet.save(path);
}

} // namespace

bool drawFrontSheet(const std::wstring& path, const std::vector<vela::SkinDefinition>& skins)
{
    constexpr std::int32_t kSmallDpi = 64; // drawn small rather than made smaller: text stays crisp
    return drawSkins(path, stage::scenes().front(), distinctSkins(skins), kSmallDpi);
}

void drawDialogs(const std::vector<vela::SkinDefinition>& allSkins, const SheetList& draw)
{
    const std::vector<vela::SkinDefinition> skins = distinctSkins(allSkins);
    for (const Scene& scene : stage::scenes()) {
        draw(L"dialogs-" + std::wstring(scene.name),
             [&](const std::wstring& path) { return drawSkins(path, scene, skins, kDpi); });
        for (const vela::SkinDefinition& skin : skins)
            for (const std::int32_t dpi : kDpis)
                for (const auto& [act, suffix] : kActs) {
                    const std::wstring name = L"dialog-" + std::wstring(scene.name) + L"-" + skin.id + L"-" +
                                              std::to_wstring(dpi) + suffix;
                    draw(name, [&, dpi, act = act](const std::wstring& path) {
                        const auto picture = photograph(scene, skin, dpi, act);
                        return picture && tools::writePng(path, picture->pixels());
                    });
                }
    }
}

} // namespace gallery
