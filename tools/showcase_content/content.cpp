#include "tools/showcase_content/content.h"

#include "tools/showcase_content/exhibits.h"

namespace showcase {

using vela::Anchors;
using vela::Panel;
using vela::Rect;

namespace {

constexpr std::wstring_view kPageId = L"page";

} // namespace

vela::ChromeTitleBar& addShowcase(Panel& root)
{
    auto& bar = root.addControl(std::make_unique<FittedTitleBar>(
        L"chrome", Rect{0, 0, kClientSize.width, kTitleBarHeight}, L"Showcase", vela::Theme()));
    bar.setAnchors(Anchors::Left | Anchors::Top | Anchors::Right);
    for (const auto shown : {vela::CaptionButton::Minimize, vela::CaptionButton::Maximize})
        bar.showButton(shown, true);
    showPage(root, kControlsPage);
    return bar;
}

void showPage(Panel& root, const Page& page)
{
    if (vela::Control* const shown = findControl(root, kPageId))
        root.remove(*shown);
    // Built on its own: its controls take their design from the page as it is at 96 DPI.
    auto made = std::make_unique<Panel>(std::wstring(kPageId),
                                        Rect{0, kTitleBarHeight, kPageSize.width, kPageSize.height});
    page.build(*made);
    root.add(std::move(made));
}

} // namespace showcase
