// What of a window must be painted so that a part of it becomes right.
#pragma once

#include "vela/geometry.h"

#include <vector>

namespace vela {

class Control;

// A surface is painted only where its own rectangle meets what is to be painted. So the damage, in client
// pixels, grows by each surface whose glow or shadow lies in it, until there is no further one. The additions
// stand behind what was given.
std::vector<Rect> grownDamage(const Control& root, std::vector<Rect> damage);

} // namespace vela
