// Which control the keyboard goes to next.
#pragma once

#include <vector>

namespace vela {

class Control;

// The visible, enabled controls of a tree that take the focus, in reading order: by lines from the top, from
// the left within a line. Controls whose vertical middles lie inside each other share a line.
std::vector<Control*> focusOrder(Control& root);

enum class FocusStep { Next, Previous };

// Wraps around; the first (or last) when nothing is focused, null when nothing can be.
Control* focusAfter(const std::vector<Control*>& order, const Control* current, FocusStep step);

} // namespace vela
