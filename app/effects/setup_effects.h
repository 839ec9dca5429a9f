// Everything the setup's decisions ask of the system, and nothing more: the order of a run, which sentence a
// failing step gives and what no longer runs after it are plain code over these interfaces. Windows does the
// effects in the product; a recording stand-in that can fail at any step does them in the tests. Code that
// needs one subject takes that one; a step that also logs its outcome takes the whole.
#pragma once

#include "app/effects/file_effects.h"
#include "app/effects/installer_effects.h"
#include "app/effects/process_effects.h"
#include "app/effects/shell_effects.h"
#include "app/effects/step_log.h"

namespace setup {

class SetupEffects : public FileEffects,
                     public InstallerEffects,
                     public ShellEffects,
                     public ProcessEffects,
                     public StepLog {};

} // namespace setup
