// The skins found on disk, and the way from a requested id to a skin. A look-up always gives one: the
// built-in skin stands in for what is not there.
#pragma once

#include "vela/theme/skins/skin_files.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

// The id in lower case; the ids of the automatic Windows 11 skin become that of its light or dark variant, by
// what the host says at this moment.
std::wstring resolveSkinId(std::wstring_view requestedId, SkinHost& host);

// Made of defaults alone; lives as long as the process.
const SkinDefinition& builtInSkin();

// The skin's style sheet as the user's system wants it at this moment: in high-contrast mode in the user's
// colours.
StyleSheet styleSheetFor(const SkinDefinition& skin, SkinHost& host);

// The first skin of that id, in any case; null when there is none. Nothing is resolved: here the automatic
// Windows 11 skin is a skin like any other.
const SkinDefinition* findSkin(std::span<const SkinDefinition> skins, std::wstring_view id) noexcept;

class SkinCatalog {
public:
    // Reads the folders in their order. The host is borrowed and must outlive the catalogue.
    SkinCatalog(SkinHost& host, std::span<const std::wstring> folders);

    const std::vector<SkinDefinition>& skins() const noexcept { return skins_; }

    // The first skin whose id is the resolved one, or the built-in skin.
    const SkinDefinition& find(std::wstring_view requestedId) const;

private:
    SkinHost& host_;
    std::vector<SkinDefinition> skins_;
};

} // namespace vela
