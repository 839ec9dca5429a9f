// What a window says to a person who cannot see it, as plain values: the tree of what is shown, without the
// parts that only hold or catch something.
#pragma once

#include "vela/controls/tree/control_state.h"

#include <vector>

namespace vela {

class Control;

struct AccessibleNode {
    AccessibleInfo info;
    std::vector<AccessibleNode> children;
};

// Of the control and what lies in it, hidden and collapsed controls left out.
AccessibleNode accessibleTree(const Control& root);

} // namespace vela
