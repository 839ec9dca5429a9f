// The builders of the control kinds. Each derives every variant of its kind from the context into the sheet;
// a builder may use the records of kinds that were built before it.
#pragma once

#include "vela/theme/derive/context.h"
#include "vela/theme/records/style_sheet.h"

namespace vela::derive {

// The scroll bar of a list, on the list's own surface.
void deriveScrollBar(const Context& context, const Backdrop& backdrop, ScrollBarStyle& style);

void buildTexts(const Context& context, StyleSheet& sheet);
void buildButtons(const Context& context, StyleSheet& sheet);
void buildBitmapButtons(const Context& context, StyleSheet& sheet);
void buildPanels(const Context& context, StyleSheet& sheet);
void buildCards(const Context& context, StyleSheet& sheet);
void buildTitleBar(const Context& context, StyleSheet& sheet);
void buildStatusChips(const Context& context, StyleSheet& sheet);
void buildProgressBar(const Context& context, StyleSheet& sheet);
void buildScrollBar(const Context& context, StyleSheet& sheet);
void buildCheckBox(const Context& context, StyleSheet& sheet);
void buildSelectBox(const Context& context, StyleSheet& sheet);
void buildListBox(const Context& context, StyleSheet& sheet);
void buildDateInput(const Context& context, StyleSheet& sheet);
void buildTabs(const Context& context, StyleSheet& sheet);
void buildMenuBar(const Context& context, StyleSheet& sheet);
void buildTableList(const Context& context, StyleSheet& sheet);
void buildRichText(const Context& context, StyleSheet& sheet);
void buildTextInput(const Context& context, StyleSheet& sheet);
void buildSelectableText(const Context& context, StyleSheet& sheet);
void buildPopups(const Context& context, StyleSheet& sheet);
void buildTooltips(const Context& context, StyleSheet& sheet);

} // namespace vela::derive
