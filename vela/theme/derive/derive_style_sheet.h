// From a theme alone to a complete style sheet: every field of every record of every variant, before a skin's
// own style sections are applied.
#pragma once

#include "vela/theme/records/style_sheet.h"
#include "vela/theme/records/theme.h"

namespace vela {

StyleSheet deriveStyleSheet(const Theme& theme);

} // namespace vela
