// The setup's own process: what makes it safe to run elevated from a downloads folder, and what it was
// started with.
#pragma once

#include <string>
#include <vector>

namespace setup {

// The very first act of the program. From here on libraries come from the system folder only, links that an
// ordinary user planted are not followed, and no failure opens a box.
void hardenProcess() noexcept;

// The arguments after the program path; empty when the command line cannot be split.
std::vector<std::wstring> processArguments();

// Full path of the running program; empty when Windows does not tell.
std::wstring programPath();

} // namespace setup
