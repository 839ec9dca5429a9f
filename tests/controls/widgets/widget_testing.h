// A window for the one control that a test is about, and what reaches it there.
#pragma once

#include "tests/controls/tree/fake_window.h"

#include <gtest/gtest.h>

namespace vela {

class WidgetTest : public ::testing::Test {
protected:
    explicit WidgetTest(Size client = {400, 300}) : window(client) {}

    void press(Point at, std::int32_t clicks = 1) { mouse(MouseAction::Press, at, clicks); }
    void release(Point at) { mouse(MouseAction::Release, at, 1); }
    void click(Point at, std::int32_t clicks = 1)
    {
        press(at, clicks);
        release(at);
    }

    FakeWindow window;

private:
    void mouse(MouseAction action, Point at, std::int32_t clicks)
    {
        MouseEvent event;
        event.action = action;
        event.position = at;
        event.clicks = clicks;
        window.root.mouseButton(event);
    }
};

// Its handlers remove the control whose command they hear of.
struct RemovingWindow : public FakeWindow {
    using FakeWindow::FakeWindow;
    void dispatchCommand(CommandEvent& event) override { root.remove(*event.control); }
};

inline KeyEvent key(std::uint32_t code, KeyModifiers modifiers = {}, bool repeated = false)
{
    return {code, modifiers, repeated};
}

} // namespace vela
