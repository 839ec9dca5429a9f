// What a control tells the program: an action by name, with the values that changed. Handlers run in order of
// subscription until one marks the event handled.
#pragma once

#include <string>

namespace vela {

class Control;

struct CommandEvent {
    Control* control = nullptr; // not owned; valid while the event is being delivered
    std::wstring controlId;
    std::wstring action;
    std::wstring text;
    std::wstring oldValue;
    std::wstring newValue;
    bool oldChecked = false;
    bool newChecked = false;
    bool handled = false;
};

} // namespace vela
