// The line around a window that draws its own frame, above all that reaches to the window's edges. It takes
// its colour from a popup's frame, and nothing from the mouse.
#pragma once

#include "vela/controls/tree/control.h"

namespace vela {

class WindowEdge final : public Control {
public:
    using Control::Control;

    bool applyStyle(const StyleSheet& styles) override;
    void paint(HDC dc, Point origin) override;
    void setHot(bool) override {}
    bool containsLocal(Point) const override { return false; }

private:
    Color color_ = 0;
};

} // namespace vela
