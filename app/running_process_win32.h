// Other processes: listing them, asking their windows, waiting for their end, ending them.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// All processes of the machine; empty when Windows gives no list.
std::vector<ProcessEntry> runningProcesses();

OpenedProcess openProcess(std::uint32_t id, ProcessAccess access);

} // namespace setup
