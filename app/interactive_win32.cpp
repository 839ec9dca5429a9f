#include "app/interactive_win32.h"

#include "app/exit_code.h"

namespace setup {

// The setup has no windows yet: it ends as if the user had closed the first one.
int runInteractiveSetup(SetupEffects&) { return kExitSuccess; }

} // namespace setup
