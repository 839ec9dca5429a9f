// What lies under a named material that is shown by itself, as on a swatch.
#pragma once

#include "vela/theme/records/named_materials.h"

namespace showcase {

// A plain colour, because a material is light and texture over a fill. Cut gems and metals lie deeper than
// their tint, which is that of facets and sheen.
vela::Color bodyColor(const vela::NamedMaterial& material) noexcept;

} // namespace showcase
