// Names of the temporary files that a setup leaves for whoever reads them after it.
#pragma once

#include "app/effects/setup_effects.h"

#include <string_view>

namespace setup {

// Where this process keeps the temporary file `name`.
std::wstring tempSetupFile(SetupEffects& effects, std::wstring_view name);

} // namespace setup
