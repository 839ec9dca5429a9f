// Takes a window's input into its control tree: who is under the pointer, who has captured it, who has the
// keyboard, and what happens to a key that nobody takes. Points are client pixels of the window.
#pragma once

#include "vela/controls/tree/input_events.h"

#include <string_view>

namespace vela {

class Control;
class Panel;

class InputRouter {
public:
    explicit InputRouter(Panel& root) noexcept : root_(root) {}

    // Each answers whether a control took the event.
    bool mouseButton(const MouseEvent& event);
    bool mouseSecondary(const MouseEvent& event);
    bool keyPressed(const KeyEvent& event);
    bool characterTyped(std::wstring_view text);

    // True when a control looks different now.
    bool mouseMoved(Point position);
    bool pointerLeft();

    // While a control has captured the mouse it alone hears of it.
    Control* captured() const noexcept { return captured_; }
    void setCaptured(Control* control) noexcept { captured_ = control; }
    // The system took the mouse away: the control is told and nothing it had begun happens.
    void captureLost();

    // The control that the keyboard goes to; null when there is none or it cannot be reached at the moment.
    Control* focused() const noexcept;
    void focus(Control* control);
    bool windowFocused() const noexcept { return windowFocused_; }
    void setWindowFocused(bool focused);
    // True once the keyboard was used to get about, until the mouse is pressed.
    bool showsFocus() const noexcept { return showsFocus_; }

    // The control is about to go.
    void forget(const Control& control) noexcept;

private:
    bool moveFocus(bool backwards);
    bool activateDialogControl(std::uint32_t key);

    Panel& root_;
    Control* captured_ = nullptr;
    Control* focused_ = nullptr;
    bool windowFocused_ = false;
    bool showsFocus_ = false;
};

// The deepest visible control under the point, children before their parent and the last added first; null
// when there is none.
Control* controlAt(Control& root, Point position);

// The control whose hint is to be shown there: the one under the point or the nearest above it with a hint.
Control* hintedControlAt(Control& root, Point position);

} // namespace vela
