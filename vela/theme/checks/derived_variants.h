// The variants that a skin finds before it adds any of its own: for the lint, the reference of keys and the
// showcase.
#pragma once

#include "vela/theme/records/style_sheet.h"

#include <span>
#include <string>

namespace vela {

// Those of one control kind, "default" first.
std::span<const std::wstring> derivedVariants(ControlKind kind);

} // namespace vela
