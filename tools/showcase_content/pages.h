// The pages of the showcase, each of which fills an empty panel of kPageSize.
#pragma once

#include "vela/controls/panel.h"

namespace showcase {

void buildControlsPage(vela::Panel& page);

} // namespace showcase
