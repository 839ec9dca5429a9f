// The builder of each control kind: it derives every variant of the kind from the context.
#pragma once

#include "vela/theme/derive/context.h"
#include "vela/theme/records/style_sheet.h"

namespace vela::derive {

void build(const Context& context, VariantTable<TextStyle>& texts);
void build(const Context& context, VariantTable<ButtonStyle>& buttons);
void build(const Context& context, VariantTable<BitmapButtonStyle>& buttons);
void build(const Context& context, VariantTable<PanelStyle>& panels);
void build(const Context& context, VariantTable<CardStyle>& cards);
void build(const Context& context, VariantTable<ChromeTitleBarStyle>& titleBars);
void build(const Context& context, VariantTable<StatusChipStyle>& chips);
void build(const Context& context, VariantTable<ProgressBarStyle>& bars);
void build(const Context& context, VariantTable<ScrollBarStyle>& bars);
void build(const Context& context, VariantTable<CheckBoxStyle>& checkBoxes);
void build(const Context& context, VariantTable<SelectBoxStyle>& boxes);
void build(const Context& context, VariantTable<ListBoxStyle>& boxes);
void build(const Context& context, VariantTable<DateInputStyle>& inputs);
void build(const Context& context, VariantTable<TabsStyle>& tabStrips);
void build(const Context& context, VariantTable<MenuBarStyle>& bars);
void build(const Context& context, VariantTable<TableListStyle>& lists);
void build(const Context& context, VariantTable<RichTextStyle>& texts);
void build(const Context& context, VariantTable<TextInputStyle>& inputs);
void build(const Context& context, VariantTable<SelectableTextStyle>& texts);
void build(const Context& context, VariantTable<PopupStyle>& popups);
void build(const Context& context, VariantTable<TooltipStyle>& tooltips);

// Parts of other kinds.
void deriveScrollBar(const Context& context, const Backdrop& backdrop, ScrollBarStyle& style);
void deriveSelectBox(const Context& context, SelectBoxStyle& style);

} // namespace vela::derive
