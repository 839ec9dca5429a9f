// Controls that are shown in a state they would otherwise be in only for a moment: hot, pressed, focused.
// They are the toolkit's own controls, set by their own setters and painted as always; what is special is
// that nothing reaches them any more that could change the state.
#pragma once

#include "vela/controls/tree/panel.h"
#include "vela/controls/widgets/chrome_title_bar.h"

#include <memory>

namespace showcase {

// Neither the mouse nor the keyboard gets to what stands on it.
class StillPanel : public vela::Panel {
public:
    StillPanel(std::wstring id, vela::Rect bounds) : Panel(std::move(id), bounds) { setEnabled(false); }

    bool mouseMoved(vela::Point) override { return false; }
};

// A place on which one control has the keyboard, whatever the window's focus is: a window has one focus, a
// showcase shows many. Wider than the control by kStageRoom on each side, for the ring around it.
class FocusStage final : public StillPanel {
public:
    // The focus lies on `focused`, which is the control or a part of it.
    FocusStage(std::unique_ptr<vela::Control> control, const vela::Control& focused);
    FocusStage(const FocusStage&) = delete;
    FocusStage& operator=(const FocusStage&) = delete;
    ~FocusStage() override;

    void attachToWindow() override;

private:
    class Host;

    std::unique_ptr<Host> host_;
};

// 96-DPI pixels.
inline constexpr std::int32_t kStageRoom = 10;

// A title bar that is as high as its skin wants it.
class FittedTitleBar final : public vela::ChromeTitleBar {
public:
    using ChromeTitleBar::ChromeTitleBar;
    void onStyleApplied() override;
};

} // namespace showcase
