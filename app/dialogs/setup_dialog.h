// The common form of the setup's windows: a frame of their own with a title bar, and one popup that fills the
// rest. The tree is complete after construction, without a window, in the styles that the source gives;
// open() makes the window, hidden; runModal() shows it. Tools and tests open the same dialogs in any skin and
// state. Bounds are 96-DPI pixels of the whole client area.
#pragma once

#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/widgets/designed_popup.h"
#include "vela/controls/window/dialog_window.h"
#include "vela/controls/window/window_edge.h"

#include <optional>
#include <string_view>

namespace setup {

// What every dialog needs of its program. The module carries the icon; the owner, when there is one, is
// disabled while the dialog runs. Where dialogs share a place, each begins around the middle of the one
// before, in screen pixels; the place is borrowed.
struct DialogHost {
    HINSTANCE module = nullptr;
    vela::Window::StyleSource styles;
    HWND owner = nullptr;
    std::optional<vela::Point>* lastMiddle = nullptr;
};

// Gives a window of that width its title bar, as tall as the style's buttons need, and carries out what it
// asks for. `title` is completed by setupTitle.
vela::ChromeTitleBar& applySetupChrome(vela::Window& window, const vela::StyleSheet& styles,
                                       std::int32_t width, std::wstring_view title, bool closable,
                                       bool minimizable);

class SetupDialog : public vela::DialogWindow {
public:
    SetupDialog(const SetupDialog&) = delete;
    SetupDialog& operator=(const SetupDialog&) = delete;
    ~SetupDialog() override;

    // Once. False when Windows refuses the window.
    bool open();

    vela::Size designSize() const noexcept { return size_; }
    const std::wstring& windowTitle() const noexcept { return title_; }
    vela::ChromeTitleBar& titleBar() noexcept { return *titleBar_; }
    vela::DesignedPopup& popup() noexcept { return *popup_; }

protected:
    struct Design {
        vela::Size size;
        std::wstring_view popupId;
        // The column of title, message and other controls, from the sides of the window.
        std::int32_t columnLeft = 0;
        std::int32_t columnRight = 0;
        bool closable = true;
        bool minimizable = false;
    };

    SetupDialog(DialogHost host, const Design& design, std::wstring_view title);

    // Ends a dialog's constructor: gives the finished tree its looks and the keyboard to `focus`.
    void finish(vela::Control* focus);
    void growBy(std::int32_t height);
    void onDestroyed() override;

private:
    void followLastDialog(vela::Point middle);

    DialogHost host_;
    vela::Size size_;
    std::wstring title_;
    bool minimizable_;
    vela::ChromeTitleBar* titleBar_ = nullptr; // all owned by the root
    vela::DesignedPopup* popup_ = nullptr;
    vela::WindowEdge* edge_ = nullptr;
};

} // namespace setup
