// Pictures of the showcase's window: a page of it in one skin, all skins of a page on a contact sheet, and
// the debugging overlay in each of its modes.
#pragma once

#include "tools/gallery/sheet_gdi.h"
#include "tools/showcase/showcase_pages_win32.h"
#include "tools/showcase/showcase_window_win32.h"

#include "vela/theme/skins/skin_document.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace gallery {

inline constexpr std::int32_t kShowcaseDpis[] = {96, 144, 192};

class ShowcaseCamera {
public:
    // One window for all pictures. They cannot be written when it cannot be opened.
    ShowcaseCamera() : open_(window_.open()) {}

    // The next pictures show this page at this DPI; the contact sheet starts anew.
    void aim(const showcase::Page& page, std::int32_t dpi);

    // Each returns whether its file could be written.
    bool shoot(const std::wstring& path, const vela::SkinDefinition& skin);
    bool shoot(const std::wstring& path, const std::wstring& name, vela::StyleSheet styles);
    bool saveContactSheet(const std::wstring& path) const;

    // Presses F12 with the given modifier keys, as the user does.
    void pressDebugKey(std::span<const int> modifiers);

private:
    struct Thumbnail {
        std::wstring name;
        std::unique_ptr<vela::DibSurface> picture;
    };

    showcase::ShowcaseWindow window_;
    bool open_;
    std::vector<Thumbnail> thumbnails_;
};

} // namespace gallery
