// What a button and a check box share: armed by a press, pressed while the pointer is over it, activated by a
// release inside or by Space and Enter. A capture lost in between does nothing.
#pragma once

#include "vela/controls/tree/control.h"

namespace vela {

class Pressable : public Control {
public:
    using Control::Control;

    bool mouseButton(const MouseEvent& event) override;
    void mouseDragged(Point position) override;
    void mouseCaptureLost() override;
    bool keyPressed(const KeyEvent& event) override;
    bool acceptsFocus() const override { return true; }

private:
    void disarm();

    bool armed_ = false;
};

} // namespace vela
