#include "app/dialogs/setup_dialog.h"

#include "app/dialogs/window_title.h"

#include "vela/controls/window/window_geometry.h"
#include "vela/theme/records/style_sheet.h"

#include <windows.h>

namespace setup {

using vela::CaptionButton;
using vela::ChromeTitleBar;
using vela::CommandEvent;

ChromeTitleBar& applySetupChrome(vela::Window& window, const vela::StyleSheet& styles, std::int32_t width,
                                 std::wstring_view title, bool closable, bool minimizable)
{
    const auto& style = styles.find<vela::ChromeTitleBarStyle>(vela::kDefaultVariant);
    const std::int32_t height = 2 * style.buttonTop + style.buttonHeight;
    auto& bar = window.root().addControl(std::make_unique<ChromeTitleBar>(
        L"setup.chrome", vela::Rect{0, 0, width, height}, setupTitle(title), vela::Theme()));
    bar.showButton(CaptionButton::Minimize, minimizable);
    if (!closable) {
        bar.button(CaptionButton::Close).setEnabled(false);
        bar.button(CaptionButton::Close).setHint(L"Instalace prave probiha");
    }
    window.subscribe({}, [&window](CommandEvent& event) {
        event.handled = event.handled || window.performChromeAction(event.action);
    });
    return bar;
}

SetupDialog::SetupDialog(DialogHost host, const Design& design, std::wstring_view title)
    : host_(std::move(host)), size_(design.size), title_(setupTitle(title)), minimizable_(design.minimizable)
{
    setCustomFrame(true);
    setShrinkToFit(true);
    const auto styles = host_.styles();
    titleBar_ = &applySetupChrome(*this, *styles, size_.width, title, design.closable, design.minimizable);
    const std::int32_t top = titleBar_->bounds().height;
    popup_ = &root().addControl(std::make_unique<vela::DesignedPopup>(
        std::wstring(design.popupId), vela::Rect{0, top, size_.width, size_.height - top}));
    popup_->setClosable(false); // the title bar closes the window
    popup_->setFramed(false);
    popup_->setContentColumn(design.columnLeft, design.columnRight);
}

SetupDialog::~SetupDialog() { destroy(); }

void SetupDialog::finish(vela::Control* focus)
{
    // The last control lies above all others.
    edge_ = &root().addControl(
        std::make_unique<vela::WindowEdge>(L"setup.edge", vela::Rect{0, 0, size_.width, size_.height}));
    edge_->setStyleKey(popup_->styleKey());
    setStyleSource(host_.styles);
    focusControl(focus);
}

void SetupDialog::growBy(std::int32_t height)
{
    size_.height += height;
    vela::Rect bounds = popup_->bounds();
    bounds.height += height;
    popup_->setBounds(bounds);
    edge_->setBounds({0, 0, size_.width, size_.height});
}

bool SetupDialog::open()
{
    const DWORD style = WS_POPUP | WS_SYSMENU | (minimizable_ ? WS_MINIMIZEBOX : 0U);
    if (!create(host_.module, title_, size_, {style, WS_EX_APPWINDOW}, host_.owner))
        return false;
    // The system's menu and the taskbar's offer what the title bar does.
    if (!titleBar_->button(CaptionButton::Close).isEnabled())
        ::EnableMenuItem(::GetSystemMenu(handle(), FALSE), SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
    if (host_.lastMiddle && *host_.lastMiddle)
        followLastDialog(**host_.lastMiddle);
    return true;
}

void SetupDialog::followLastDialog(vela::Point middle)
{
    RECT own{};
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (!::GetWindowRect(handle(), &own) ||
        !::GetMonitorInfoW(::MonitorFromPoint({middle.x, middle.y}, MONITOR_DEFAULTTONEAREST), &monitor))
        return;
    const vela::Size size{own.right - own.left, own.bottom - own.top};
    const RECT& work = monitor.rcWork;
    const vela::Rect place =
        vela::movedInside({middle.x - size.width / 2, middle.y - size.height / 2, size.width, size.height},
                          {work.left, work.top, work.right - work.left, work.bottom - work.top});
    ::SetWindowPos(handle(), nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void SetupDialog::onDestroyed()
{
    RECT own{};
    if (host_.lastMiddle && !::IsIconic(handle()) && ::GetWindowRect(handle(), &own))
        *host_.lastMiddle = vela::Point{(own.left + own.right) / 2, (own.top + own.bottom) / 2};
    DialogWindow::onDestroyed();
}

} // namespace setup
