// A control's snapshot and what it is to a person who cannot see it: plain values, taken and put back by
// name.
#pragma once

#include "vela/geometry.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vela {

using PropertyList = std::vector<std::pair<std::wstring, std::wstring>>;

struct ControlState {
    std::wstring id;
    Rect bounds;
    bool visible = true;
    bool enabled = true;
    bool collapsed = false;
    std::wstring styleKey;
    PropertyList properties;
    friend bool operator==(const ControlState&, const ControlState&) = default;
};

enum class AccessibleRole : std::uint8_t {
    Pane,
    Dialog,
    TitleBar,
    StaticText,
    PushButton,
    CheckBox,
    ProgressBar,
    EditableText,
};

enum class AccessibleAction : std::uint8_t { None, Press, Toggle, Edit };

struct AccessibleInfo {
    AccessibleRole role = AccessibleRole::Pane;
    std::wstring name;
    std::wstring value;
    std::wstring description; // the hint
    Rect bounds;              // client pixels of the window
    AccessibleAction action = AccessibleAction::None;
    bool enabled = true;
    bool focusable = false;
    bool focused = false;
    bool checked = false;
    bool readOnly = false;
    bool busy = false;
    friend bool operator==(const AccessibleInfo&, const AccessibleInfo&) = default;
};

} // namespace vela
