// The skins and the styles of this process, as its machine and its user have them. UI thread only.
#pragma once

#include "vela/theme/skins/skin_catalog.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

// The folders that the process's catalogue is read from, in order: "skins" beside the program first, so that
// a user's file wins over those the program brings. Means something only before the first use of
// skinCatalog().
void setSkinFolders(std::vector<std::wstring> folders);

// The machine itself.
SkinHost& systemSkinHost();

// Read from disk on the first call and kept until the process ends: a file that changes meanwhile counts from
// the next start on.
const SkinCatalog& skinCatalog();

// What a window's style source gives: the styles of the requested skin, "win11-auto" among them, for the
// system's present light or dark and high-contrast mode. The last ones are kept while nothing changes.
std::shared_ptr<const StyleSheet> systemStyles(std::wstring_view requestedId);

} // namespace vela
