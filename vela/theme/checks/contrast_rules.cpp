#include "vela/theme/checks/contrast_rules.h"

namespace vela {
namespace {

using Card = CardStyle;
using Check = CheckBoxStyle;
using Chip = StatusChipStyle;
using Date = DateInputStyle;
using Field = TextInputStyle;
using Glyph = BitmapButtonStyle;
using List = ListBoxStyle;
using Menu = MenuBarStyle;
using Popup = PopupStyle;
using Progress = ProgressBarStyle;
using Rich = RichTextStyle;
using Select = SelectBoxStyle;
using Selectable = SelectableTextStyle;
using Table = TableListStyle;
using Title = ChromeTitleBarStyle;
using Tip = TooltipStyle;

constexpr Rule<Glyph> kGlyphRules[] = {
    {"text", Need::Text, &Glyph::text, {&Glyph::image}},
    {"tint", Need::Mark, &Glyph::tint, {&Glyph::image}},
};

constexpr Rule<Card> kCardRules[] = {
    {"title", Need::Text, &Card::titleText, {&Card::header}, &Card::surface},
    {"subtitle", Need::Text, &Card::subtitleText, {&Card::header}, &Card::surface},
};

constexpr Rule<Title> kTitleRules[] = {
    {"title", Need::Text, &Title::titleText, {&Title::surface}},
    {"hot close glyph", Need::Mark, &Title::closeHotColor, {&Title::closeHotSurface}, &Title::surface},
    {"pressed close glyph",
     Need::Mark,
     &Title::closePressedColor,
     {&Title::closePressedSurface},
     &Title::surface},
};

constexpr Rule<Chip> kChipRules[] = {
    {"text", Need::Text, &Chip::text, {&Chip::surface}},
    {"badge", Need::Edge, {}, {&Chip::badge}, &Chip::surface},
};

constexpr Rule<Progress> kProgressRules[] = {
    {"label", Need::Text, &Progress::labelText, {&Progress::frame}},
    {"fill", Need::Edge, {}, {&Progress::fill}, &Progress::track},
};

constexpr Rule<Check> kCheckRules[] = {
    {"text", Need::Text, &Check::text},
    {"disabled text", Need::DisabledText, &Check::text},
    {"box", Need::Edge, {}, {&Check::boxUnchecked, &Check::boxUncheckedHot, &Check::boxUncheckedPressed}},
    {"checked box", Need::Edge, {}, {&Check::boxChecked, &Check::boxCheckedHot, &Check::boxCheckedPressed}},
    {"check mark",
     Need::Mark,
     &Check::checkColor,
     {&Check::boxChecked, &Check::boxCheckedHot, &Check::boxCheckedPressed}},
    {"disabled check mark", Need::DisabledText, &Check::checkColor, {&Check::boxCheckedDisabled}},
};

constexpr Rule<Select> kSelectRules[] = {
    {"text", Need::Text, &Select::text, {&Select::surface, &Select::hotSurface, &Select::pressedSurface}},
    {"disabled text", Need::DisabledText, &Select::text, {&Select::disabledSurface}},
    {"edge", Need::Edge, {}, {&Select::surface, &Select::hotSurface, &Select::pressedSurface}},
    {"arrow", Need::Mark, &Select::arrowColor, {&Select::arrowSurface}, &Select::surface},
    {"hot arrow", Need::Mark, &Select::arrowColor, {&Select::arrowHotSurface}, &Select::hotSurface},
    {"pressed arrow",
     Need::Mark,
     &Select::arrowColor,
     {&Select::arrowPressedSurface},
     &Select::pressedSurface},
    {"option text",
     Need::Text,
     &Select::text,
     {&Select::optionHotSurface, &Select::optionSelectedSurface},
     &Select::dropdownSurface},
    {"list text", Need::Text, &Select::text, {&Select::dropdownSurface}},
};

constexpr Rule<List> kListRules[] = {
    {"text", Need::Text, &List::text, {&List::row, &List::rowHot, &List::rowPressed}, &List::surface},
    {"selected text",
     Need::Text,
     &List::selectedText,
     {&List::selectedRow, &List::selectedRowHot},
     &List::surface},
    {"disabled text", Need::DisabledText, &List::disabledText, {&List::row}, &List::surface},
    {"selected rail", Need::Edge, {}, {&List::selectedRail}, &List::selectedRow},
};

constexpr Rule<Date> kDateRules[] = {
    {"text", Need::Text, &Date::text, {&Date::surface, &Date::hotSurface, &Date::pressedSurface}},
    {"disabled text", Need::DisabledText, &Date::text, {&Date::disabledSurface}},
    {"edge", Need::Edge, {}, {&Date::surface, &Date::hotSurface, &Date::pressedSurface}},
    {"arrow", Need::Mark, &Date::arrowColor, {&Date::arrowSurface}, &Date::surface},
    {"hot arrow", Need::Mark, &Date::arrowColor, {&Date::arrowHotSurface}, &Date::hotSurface},
    {"pressed arrow", Need::Mark, &Date::arrowColor, {&Date::arrowPressedSurface}, &Date::pressedSurface},
    {"month", Need::Text, &Date::headerText, {&Date::headerSurface}, &Date::popupSurface},
    {"weekday", Need::Text, &Date::weekdayText, {&Date::popupSurface}},
    {"day",
     Need::Text,
     &Date::dayText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface,
      &Date::popupSurface},
     &Date::popupSurface},
    {"saturday",
     Need::Text,
     &Date::saturdayText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface},
     &Date::popupSurface},
    {"sunday",
     Need::Text,
     &Date::sundayText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface},
     &Date::popupSurface},
    {"weekend",
     Need::Text,
     &Date::weekendText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface},
     &Date::popupSurface},
    {"day of another month",
     Need::DisabledText,
     &Date::mutedDayText,
     {&Date::popupSurface, &Date::dayHotSurface}},
    {"today", Need::Edge, {}, {&Date::todaySurface, &Date::daySelectedSurface}, &Date::popupSurface},
};

constexpr Rule<Menu> kMenuRules[] = {
    {"item",
     Need::Text,
     &Menu::itemText,
     {&Menu::itemSurface, &Menu::itemHotSurface, &Menu::itemPressedSurface, &Menu::itemActiveSurface},
     &Menu::surface},
    {"popup item",
     Need::Text,
     &Menu::itemText,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
    {"shortcut",
     Need::Text,
     &Menu::shortcutText,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
    {"disabled item", Need::DisabledText, &Menu::itemText, {&Menu::popupSurface, &Menu::surface}},
    {"submenu arrow",
     Need::Mark,
     &Menu::arrow,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
    {"check",
     Need::Mark,
     &Menu::check,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
};

constexpr Rule<Table> kTableRules[] = {
    {"row", Need::Text, &Table::rowText, {&Table::row}, &Table::surface},
    {"selected row", Need::Text, &Table::selectedText, {&Table::selectedRow}, &Table::surface},
    {"heading", Need::Text, &Table::headerText, {&Table::header}},
    {"selected rail", Need::Edge, {}, {&Table::selectedRail}, &Table::selectedRow},
    {"sort indicator", Need::Mark, &Table::sortIndicator, {&Table::header}},
    {"hot sort indicator", Need::Mark, &Table::sortIndicatorHot, {&Table::header}},
    {"hot resize grip", Need::Mark, &Table::resizeGripHot, {&Table::header}},
};

constexpr Rule<Rich> kRichRules[] = {
    {"text", Need::Text, &Rich::text, {&Rich::surface}},
    {"link", Need::Text, &Rich::linkText, {&Rich::surface}},
    {"icon", Need::Edge, {}, {&Rich::icon}, &Rich::surface},
};

constexpr Rule<Field> kFieldRules[] = {
    {"text",
     Need::Text,
     &Field::text,
     {&Field::surface, &Field::hotSurface, &Field::pressedSurface, &Field::focusedSurface}},
    {"placeholder or text of a locked field",
     Need::Text,
     &Field::placeholderText,
     {&Field::surface, &Field::hotSurface, &Field::pressedSurface, &Field::focusedSurface,
      &Field::disabledSurface}},
    {"disabled text", Need::DisabledText, &Field::text, {&Field::disabledSurface}},
    {"edge",
     Need::Edge,
     {},
     {&Field::surface, &Field::hotSurface, &Field::pressedSurface, &Field::focusedSurface}},
    {"caret",
     Need::Mark,
     &Field::caretColor,
     {&Field::surface, &Field::hotSurface, &Field::pressedSurface, &Field::focusedSurface}},
    {"attachment", Need::Text, &Field::attachmentText, {&Field::attachmentSurface}, &Field::surface},
    {"attachment icon",
     Need::Mark,
     &Field::attachmentIconColor,
     {&Field::attachmentSurface, &Field::attachmentRemoveSurface},
     &Field::surface},
};

constexpr Rule<Selectable> kSelectableRules[] = {
    {"text", Need::Text, &Selectable::text, {&Selectable::surface}},
    {"selected text", Need::Text, &Selectable::selectedText, {&Selectable::selection}, &Selectable::surface},
    {"disabled text", Need::DisabledText, &Selectable::text, {&Selectable::surface}},
};

constexpr Rule<Popup> kPopupRules[] = {
    {"title", Need::Text, &Popup::titleText, {&Popup::header}, &Popup::surface},
    {"message", Need::Text, &Popup::messageText, {&Popup::surface}},
    {"glyph", Need::Text, &Popup::iconText, {&Popup::icon}, &Popup::surface},
};

constexpr Rule<Tip> kTipRules[] = {
    {"text", Need::Text, &Tip::textStyle, {&Tip::surface}},
    {"glyph", Need::Text, &Tip::iconText, {&Tip::icon}, &Tip::surface},
    {"badge", Need::Edge, {}, {&Tip::icon}, &Tip::surface},
    {"rail", Need::Edge, {}, {&Tip::accentRail}, &Tip::surface},
};

} // namespace

template <>
std::span<const Rule<BitmapButtonStyle>> contrastRules() noexcept
{
    return kGlyphRules;
}

template <>
std::span<const Rule<CardStyle>> contrastRules() noexcept
{
    return kCardRules;
}

template <>
std::span<const Rule<ChromeTitleBarStyle>> contrastRules() noexcept
{
    return kTitleRules;
}

template <>
std::span<const Rule<StatusChipStyle>> contrastRules() noexcept
{
    return kChipRules;
}

template <>
std::span<const Rule<ProgressBarStyle>> contrastRules() noexcept
{
    return kProgressRules;
}

template <>
std::span<const Rule<CheckBoxStyle>> contrastRules() noexcept
{
    return kCheckRules;
}

template <>
std::span<const Rule<SelectBoxStyle>> contrastRules() noexcept
{
    return kSelectRules;
}

template <>
std::span<const Rule<ListBoxStyle>> contrastRules() noexcept
{
    return kListRules;
}

template <>
std::span<const Rule<DateInputStyle>> contrastRules() noexcept
{
    return kDateRules;
}

template <>
std::span<const Rule<MenuBarStyle>> contrastRules() noexcept
{
    return kMenuRules;
}

template <>
std::span<const Rule<TableListStyle>> contrastRules() noexcept
{
    return kTableRules;
}

template <>
std::span<const Rule<RichTextStyle>> contrastRules() noexcept
{
    return kRichRules;
}

template <>
std::span<const Rule<TextInputStyle>> contrastRules() noexcept
{
    return kFieldRules;
}

template <>
std::span<const Rule<SelectableTextStyle>> contrastRules() noexcept
{
    return kSelectableRules;
}

template <>
std::span<const Rule<PopupStyle>> contrastRules() noexcept
{
    return kPopupRules;
}

template <>
std::span<const Rule<TooltipStyle>> contrastRules() noexcept
{
    return kTipRules;
}

} // namespace vela
