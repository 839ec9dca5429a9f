#include "vela/theme/derive/derive_style_sheet.h"

#include "vela/theme/derive/builders.h"

namespace vela {
namespace derive {
namespace {

using Builder = void (*)(const Context&, StyleSheet&);

// In the order of ControlKind.
constexpr Builder kBuilders[] = {
    buildTexts,          buildButtons,     buildBitmapButtons, buildPanels,    buildCards,     buildTitleBar,
    buildStatusChips,    buildProgressBar, buildScrollBar,     buildCheckBox,  buildSelectBox, buildListBox,
    buildDateInput,      buildTabs,        buildMenuBar,       buildTableList, buildRichText,  buildTextInput,
    buildSelectableText, buildPopups,      buildTooltips,
};
static_assert(std::size(kBuilders) == kControlKindCount);

} // namespace
} // namespace derive

StyleSheet deriveStyleSheet(const Theme& theme)
{
    const derive::Context context(theme);
    StyleSheet sheet;
    for (const derive::Builder build : derive::kBuilders)
        build(context, sheet);
    return sheet;
}

} // namespace vela
