#include "vela/theme/derive_style_sheet.h"

namespace vela {

StyleSheet deriveStyleSheet(const Theme& theme)
{
    StyleSheet sheet;
    sheet.forEachTable([](ControlKind kind, auto& table) {
        for (const std::wstring_view name : derivedVariants(kind))
            table.set(name, table.find(name));
    });
    sheet.table<TextStyle>().set(kDefaultVariant, theme.uiFont);
    sheet.table<TextStyle>().set(L"mono", theme.monoFont);
    return sheet;
}

} // namespace vela
