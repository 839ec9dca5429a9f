#include "tools/gallery/showcase_camera_gdi.h"

#include "tools/png_file_win32.h"

#include "vela/theme/skins/style_sections.h"

#include <windows.h>

namespace gallery {

namespace {

constexpr std::int32_t kColumns = 4;
constexpr std::int32_t kGap = 16;
constexpr std::int32_t kName = 22;
constexpr vela::Size kThumbnail{showcase::kClientSize.width / 2, showcase::kClientSize.height / 2};

std::unique_ptr<vela::DibSurface> shrunk(const vela::DibSurface& picture)
{
    auto small = std::make_unique<vela::DibSurface>(kThumbnail);
    ::SetStretchBltMode(small->dc(), HALFTONE);
    ::SetBrushOrgEx(small->dc(), 0, 0, nullptr);
    ::StretchBlt(small->dc(), 0, 0, kThumbnail.width, kThumbnail.height, picture.dc(), 0, 0,
                 picture.size().width, picture.size().height, SRCCOPY);
    return small;
}

} // namespace

void ShowcaseCamera::aim(const showcase::Page& page, std::int32_t dpi)
{
    thumbnails_.clear();
    if (!open_)
        return;
    showPage(window_.root(), page);
    window_.changeDpi(dpi);
}

bool ShowcaseCamera::shoot(const std::wstring& path, const vela::SkinDefinition& skin)
{
    return shoot(path, skin.name, buildStyleSheet(skin));
}

bool ShowcaseCamera::shoot(const std::wstring& path, const std::wstring& name, vela::StyleSheet styles)
{
    if (!open_)
        return false;
    window_.titleBar().setTitle(name);
    window_.applyStyles(std::make_shared<const vela::StyleSheet>(std::move(styles)));
    const auto picture = window_.picture();
    thumbnails_.push_back({name, shrunk(*picture)});
    return tools::writePng(path, picture->pixels());
}

bool ShowcaseCamera::saveContactSheet(const std::wstring& path) const
{
    const auto count = static_cast<std::int32_t>(thumbnails_.size());
    const std::int32_t rows = (count + kColumns - 1) / kColumns;
    const vela::Size cell{kThumbnail.width + kGap, kThumbnail.height + kName + kGap};
    Sheet sheet({kColumns * cell.width + kGap, rows * cell.height + kGap}, {});
    for (std::int32_t i = 0; i < count; ++i) {
        const Thumbnail& shown = thumbnails_[static_cast<std::size_t>(i)];
        const vela::Point at{kGap + i % kColumns * cell.width, kGap + i / kColumns * cell.height};
        sheet.caption({at.x, at.y, kThumbnail.width, kName}, shown.name);
        ::BitBlt(sheet.dc(), at.x, at.y + kName, kThumbnail.width, kThumbnail.height, shown.picture->dc(), 0,
                 0, SRCCOPY);
    }
    return sheet.save(path);
}

void ShowcaseCamera::pressDebugKey(std::span<const int> modifiers)
{
    BYTE keys[256] = {};
    for (const int key : modifiers)
        keys[key] = 0x80;
    ::SetKeyboardState(keys);
    ::SendMessageW(window_.handle(), WM_KEYDOWN, VK_F12, 0);
    BYTE none[256] = {};
    ::SetKeyboardState(none);
}

} // namespace gallery
