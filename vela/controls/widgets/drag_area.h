// The part of a title bar or of a popup's header that moves the window. It only says so, as the command
// "drag"; whoever owns the window starts the move.
#pragma once

#include "vela/controls/tree/control.h"

namespace vela {

class DragArea : public Control {
public:
    using Control::Control;

    bool mouseButton(const MouseEvent& event) override;

    // Whose id and text the command carries; the area's own id while it is empty.
    void setSender(std::wstring id, std::wstring text);
    // The command of a double click; none while it is empty.
    void setDoubleClickAction(std::wstring action) { doubleClickAction_ = std::move(action); }

private:
    std::wstring senderId_;
    std::wstring text_;
    std::wstring doubleClickAction_;
};

} // namespace vela
