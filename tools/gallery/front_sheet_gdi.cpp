// One picture for the front page: the setup's dialog in all skins of the document.
#include "tools/gallery/gallery_gdi.h"
#include "tools/gallery/skin_parts_gdi.h"

#include "vela/render/mark_painter.h"
#include "vela/theme/style_sections.h"

#include <algorithm>

namespace gallery {
namespace {

using vela::kDefaultVariant;
using vela::Rect;
using vela::VisualState;

constexpr vela::Size kDialog{400, 268};
constexpr std::int32_t kGap = 16;
constexpr std::int32_t kMargin = 20;

void drawField(const SkinPage& page, const Rect& rect)
{
    const auto& style = page.styles.find<vela::TextInputStyle>(kDefaultVariant);
    page.surface(rect, style.focusedSurface);
    page.text(inset(rect, style.paddingX, 0), L"C:\\Program Files\\Tamber", style.text);
}

void drawOption(const SkinPage& page, const Rect& rect, std::wstring_view caption, bool checked)
{
    const auto& style = page.styles.find<vela::CheckBoxStyle>(kDefaultVariant);
    const Rect box{rect.x, rect.y + (rect.height - style.boxSize) / 2, style.boxSize, style.boxSize};
    page.surface(box, checked ? style.boxChecked : style.boxUnchecked);
    if (checked)
        vela::paintGlyph(page.sheet.dc(), vela::Glyph::Check, vela::markBox(style.boxChecked.shape, box),
                         kDpi, style.checkColor);
    page.text({rect.x + style.textLeft, rect.y, rect.width - style.textLeft, rect.height}, caption,
              style.text);
}

void drawProgress(const SkinPage& page, const Rect& rect)
{
    const auto& style = page.styles.find<vela::ProgressBarStyle>(kDefaultVariant);
    page.surface(rect, style.frame);
    const Rect track = inset(rect, style.insetX, style.insetY);
    page.surface(track, style.track);
    vela::paintProgressFill(page.sheet.dc(), track, style.fill, static_cast<float>(track.width) * 0.62F);
}

void drawDialog(const SkinPage& page, const Rect& rect, std::wstring_view name)
{
    vela::SurfaceStyle ground = page.styles.find<vela::PanelStyle>(kDefaultVariant).surface;
    ground.shape = vela::ShapeKind::Rect;
    page.surface(rect, ground);
    std::int32_t y =
        drawTitleBar(page, {rect.x, rect.y, rect.width, 0}, L"Tamber", CaptionButtons::AllNormal) + 12;
    const std::int32_t left = rect.x + 20;
    const std::int32_t width = rect.width - 40;
    page.text({left, y, width, 24}, name, page.styles.find<vela::TextStyle>(L"title"));
    page.text({left, y + 24, width, 22}, L"Vyberte složku pro instalaci.",
              page.styles.find<vela::TextStyle>(L"muted"));
    drawField(page, {left, y + 52, width, 32});
    drawOption(page, {left, y + 92, width / 2, 28}, L"Spouštět s Windows", true);
    drawOption(page, {left + width / 2, y + 92, width / 2, 28}, L"Zástupce na ploše", false);
    drawProgress(page, {left, y + 128, width, 22});
    const std::int32_t buttonTop = rect.y + rect.height - 46;
    page.button({rect.x + rect.width - 20 - 112, buttonTop, 112, 32},
                page.styles.find<vela::ButtonStyle>(L"primary"), VisualState::Normal, L"Instalovat");
    page.button({rect.x + rect.width - 20 - 232, buttonTop, 112, 32},
                page.styles.find<vela::ButtonStyle>(L"secondary"), VisualState::Normal, L"Zavřít");
}

} // namespace

bool drawFrontSheet(const std::wstring& path, std::vector<vela::SkinDefinition> skins)
{
    // A skin that turns into another one by itself would only show that one twice.
    std::erase_if(skins, [](const vela::SkinDefinition& skin) { return skin.id.ends_with(L"-auto"); });
    constexpr std::int32_t kColumns = 4;
    const auto count = static_cast<std::int32_t>(skins.size());
    const std::int32_t rows = (count + kColumns - 1) / kColumns;
    Sheet sheet({2 * kMargin + kColumns * (kDialog.width + kGap) - kGap,
                 2 * kMargin + rows * (kDialog.height + kGap) - kGap},
                {});
    for (std::int32_t i = 0; i < count; ++i) {
        const vela::SkinDefinition& skin = skins[static_cast<std::size_t>(i)];
        const vela::StyleSheet styles = vela::buildStyleSheet(skin);
        drawDialog({sheet, styles},
                   {kMargin + i % kColumns * (kDialog.width + kGap),
                    kMargin + i / kColumns * (kDialog.height + kGap), kDialog.width, kDialog.height},
                   skin.name);
    }
    return sheet.save(path);
}

} // namespace gallery
