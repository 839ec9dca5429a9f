// What the showcase shows: every control of the toolkit in every state it can be in, on pages that share one
// title bar. The one builder of it: the live window, the gallery, the tests and the measurements open the
// same controls. All lengths are 96-DPI pixels.
#pragma once

#include "vela/controls/tree/panel.h"
#include "vela/controls/widgets/chrome_title_bar.h"

#include <string_view>

namespace showcase {

inline constexpr std::int32_t kTitleBarHeight = 40;
inline constexpr vela::Size kPageSize{1216, 948};
inline constexpr vela::Size kClientSize{kPageSize.width, kTitleBarHeight + kPageSize.height};

struct Page {
    std::wstring_view name;
    void (*build)(vela::Panel& page);
};

// The toolkit's controls; pages that need more than the toolkit are the window's (showcase_pages_win32.h).
void buildControlsPage(vela::Panel& page);
inline constexpr Page kControlsPage{L"controls", buildControlsPage};

// Fills the root of a window whose client area has kClientSize: the title bar and the controls' page.
vela::ChromeTitleBar& addShowcase(vela::Panel& root);

// Puts another page into the place of the one that is shown. The window must apply its styles afterwards.
void showPage(vela::Panel& root, const Page& page);

} // namespace showcase
