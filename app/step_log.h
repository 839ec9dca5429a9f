// The setup's own log: one line a step with its outcome, because a failed copy, shortcut or version check
// does not show in the installer's log.
#pragma once

#include "app/setup_effects.h"

#include <string_view>

namespace setup {

// "step: ok" or "step: failed, error 5", followed by what it was about where that helps. HRESULTs are written
// as eight hexadecimal digits.
std::wstring stepLine(std::wstring_view step, WindowsError error, std::wstring_view about);

// Writes the line; true when the step has succeeded.
bool noteStep(SetupEffects& effects, std::wstring_view step, WindowsError error,
              std::wstring_view about = {});

} // namespace setup
