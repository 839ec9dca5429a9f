// The skins and the styles of this process, as its machine and its user have them. UI thread only.
#pragma once

#include "vela/theme/skins/skin_catalog.h"

#include <memory>
#include <string_view>

namespace vela {

// The machine itself.
SkinHost& systemSkinHost();

// The skins in the resource folders, read from disk on the first call and kept until the process ends: a file
// that changes meanwhile counts from the next start on.
const SkinCatalog& skinCatalog();

// What a window's style source gives: the styles of the requested skin, "win11-auto" among them, for the
// system's present light or dark and high-contrast mode. The last ones are cached while nothing changes.
std::shared_ptr<const StyleSheet> systemStyles(std::wstring_view requestedId);

} // namespace vela
