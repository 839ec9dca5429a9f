// What the Windows Installer already knows of this product.
#pragma once

#include "app/setup_effects.h"

namespace setup {

// The product codes held for the upgrade code, in the installer's order.
std::vector<std::wstring> relatedProductCodes(SetupEffects& effects);

bool isProductInstalled(SetupEffects& effects);

} // namespace setup
