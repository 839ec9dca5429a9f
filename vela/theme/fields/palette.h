// The colours of a theme addressed by role.
#pragma once

#include "vela/theme/records/theme.h"

#include <string_view>

namespace vela {

Color paletteColor(const Theme& theme, PaletteRole role) noexcept;

// The fallback when the name is no role.
Color paletteColor(const Theme& theme, std::wstring_view roleName, Color fallback) noexcept;

// The colour of the role when one is named, else the colour that stands beside it.
Color resolvedColor(const Theme& theme, const ThemeColor& color) noexcept;

} // namespace vela
