// What this machine and session should be asked to do.
#pragma once

#include "vela/theme/records/vocabulary.h"

namespace vela {

// Asked anew each time: the user may connect remotely or change the settings while a window is open.
PerformanceProfile performanceProfile() noexcept;

} // namespace vela
