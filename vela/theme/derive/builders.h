// The builders of the control kinds. Each derives every variant of its kind from the context into the sheet;
// a builder may use the records of kinds that were built before it.
#pragma once

#include "vela/theme/derive/context.h"
#include "vela/theme/records/style_sheet.h"

namespace vela::derive {

// The scroll bar of a list, on the list's own surface.
void deriveScrollBar(const DeriveContext& context, const Backdrop& backdrop, ScrollBarStyle& style);

void buildTexts(const DeriveContext& context, StyleSheet& sheet);
void buildButtons(const DeriveContext& context, StyleSheet& sheet);
void buildBitmapButtons(const DeriveContext& context, StyleSheet& sheet);
void buildPanels(const DeriveContext& context, StyleSheet& sheet);
void buildCards(const DeriveContext& context, StyleSheet& sheet);
void buildTitleBar(const DeriveContext& context, StyleSheet& sheet);
void buildStatusChips(const DeriveContext& context, StyleSheet& sheet);
void buildProgressBar(const DeriveContext& context, StyleSheet& sheet);
void buildScrollBar(const DeriveContext& context, StyleSheet& sheet);
void buildCheckBox(const DeriveContext& context, StyleSheet& sheet);
void buildSelectBox(const DeriveContext& context, StyleSheet& sheet);
void buildListBox(const DeriveContext& context, StyleSheet& sheet);
void buildDateInput(const DeriveContext& context, StyleSheet& sheet);
void buildTabs(const DeriveContext& context, StyleSheet& sheet);
void buildMenuBar(const DeriveContext& context, StyleSheet& sheet);
void buildTableList(const DeriveContext& context, StyleSheet& sheet);
void buildRichText(const DeriveContext& context, StyleSheet& sheet);
void buildTextInput(const DeriveContext& context, StyleSheet& sheet);
void buildSelectableText(const DeriveContext& context, StyleSheet& sheet);
void buildPopups(const DeriveContext& context, StyleSheet& sheet);
void buildTooltips(const DeriveContext& context, StyleSheet& sheet);

} // namespace vela::derive
