#include "vela/theme/derive/derive_style_sheet.h"

#include "vela/theme/derive/builders.h"

namespace vela {

StyleSheet deriveStyleSheet(const Theme& theme)
{
    const derive::Context context(theme);
    StyleSheet sheet;
    sheet.forEachTable([&context](ControlKind, auto& table) { derive::build(context, table); });
    return sheet;
}

} // namespace vela
