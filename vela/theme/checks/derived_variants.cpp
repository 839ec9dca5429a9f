#include "vela/theme/checks/derived_variants.h"

#include "vela/theme/derive/derive_style_sheet.h"

#include <array>
#include <vector>

namespace vela {

std::span<const std::wstring> derivedVariants(ControlKind kind)
{
    using Names = std::vector<std::wstring>;
    // They are the same for every theme.
    static const auto all = [] {
        std::array<Names, kControlKindCount> names;
        deriveStyleSheet(Theme{}).forEachTable([&names](ControlKind each, const auto& table) {
            for (const auto& variant : table)
                names[static_cast<std::size_t>(each)].push_back(variant.name);
        });
        return names;
    }();
    return all[static_cast<std::size_t>(kind)];
}

} // namespace vela
