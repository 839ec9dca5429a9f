// What the Windows Installer already knows of this product.
#pragma once

#include "app/effects/installer_effects.h"

#include <vector>

namespace setup {

// The product codes held for the upgrade code, in the installer's order.
std::vector<std::wstring> relatedProductCodes(InstallerEffects& installer);

bool isProductInstalled(InstallerEffects& installer);

} // namespace setup
