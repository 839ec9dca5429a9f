// Which pairs of a style record's colours have to stand out from each other, and how far: one description for
// the tests and the skin lint.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/records/control_styles.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace vela::checks {

// An edge is what identifies a control: its border or its fill, whichever stands out more. Separators and the
// hairlines of panels are none.
enum class Requirement : std::uint8_t { Text, DisabledText, Mark, Edge };

inline float requiredRatio(Requirement requirement)
{
    switch (requirement) {
    case Requirement::Text: return kTextContrast;
    case Requirement::DisabledText: return kDisabledTextContrast;
    case Requirement::Mark:
    case Requirement::Edge: break;
    }
    return kMarkContrast;
}

// The colour that is checked: a text's, a mark's, or none where a surface itself is.
template <class Record>
struct Foreground {
    constexpr Foreground() = default;
    constexpr Foreground(FontSpec Record::*font_) : font(font_) {}
    constexpr Foreground(Color Record::*color_) : color(color_) {}

    FontSpec Record::*font = nullptr;
    Color Record::*color = nullptr;

    Color in(const Record& record, Requirement requirement) const
    {
        if (color)
            return record.*color;
        return requirement == Requirement::DisabledText ? (record.*font).disabledColor : (record.*font).color;
    }
};

inline constexpr std::size_t kMostFaces = 5;

// Checked on each of the faces; without a face on the backdrop; without a backdrop on what controls lie on.
// An Edge checks the faces themselves.
template <class Record>
struct ContrastRule {
    std::string_view part;
    Requirement requirement;
    Foreground<Record> foreground;
    SurfaceStyle Record::*faces[kMostFaces] = {};
    SurfaceStyle Record::*backdrop = nullptr;
};

// None for kinds whose rules are not a matter of single fields: texts, buttons, tabs, panels and scroll bars.
template <class Record>
inline constexpr std::span<const ContrastRule<Record>> kContrastRules{};

using enum Requirement;

using BitmapButton = BitmapButtonStyle;
using Card = CardStyle;
using Check = CheckBoxStyle;
using Chip = StatusChipStyle;
using Date = DateInputStyle;
using Input = TextInputStyle;
using List = ListBoxStyle;
using Menu = MenuBarStyle;
using Popup = PopupStyle;
using Progress = ProgressBarStyle;
using Rich = RichTextStyle;
using Select = SelectBoxStyle;
using Selectable = SelectableTextStyle;
using Table = TableListStyle;
using Tip = TooltipStyle;
using Title = ChromeTitleBarStyle;

template <>
inline constexpr ContrastRule<BitmapButton> kContrastRules<BitmapButton>[] = {
    {"text", Text, &BitmapButton::text, {&BitmapButton::image}},
    {"tint", Mark, &BitmapButton::tint, {&BitmapButton::image}},
};

template <>
inline constexpr ContrastRule<Card> kContrastRules<Card>[] = {
    {"title", Text, &Card::titleText, {&Card::header}, &Card::surface},
    {"subtitle", Text, &Card::subtitleText, {&Card::header}, &Card::surface},
};

template <>
inline constexpr ContrastRule<Title> kContrastRules<Title>[] = {
    {"title", Text, &Title::titleText, {&Title::surface}},
    {"hot close glyph", Mark, &Title::closeHotColor, {&Title::closeHotSurface}, &Title::surface},
    {"pressed close glyph", Mark, &Title::closePressedColor, {&Title::closePressedSurface}, &Title::surface},
};

template <>
inline constexpr ContrastRule<Chip> kContrastRules<Chip>[] = {
    {"text", Text, &Chip::text, {&Chip::surface}},
    {"badge", Edge, {}, {&Chip::badge}, &Chip::surface},
};

template <>
inline constexpr ContrastRule<Progress> kContrastRules<Progress>[] = {
    {"label", Text, &Progress::labelText, {&Progress::frame}},
    {"fill", Edge, {}, {&Progress::fill}, &Progress::track},
};

template <>
inline constexpr ContrastRule<Check> kContrastRules<Check>[] = {
    {"text", Text, &Check::text},
    {"disabled text", DisabledText, &Check::text},
    {"box", Edge, {}, {&Check::boxUnchecked, &Check::boxUncheckedHot, &Check::boxUncheckedPressed}},
    {"checked box", Edge, {}, {&Check::boxChecked, &Check::boxCheckedHot, &Check::boxCheckedPressed}},
    {"check mark",
     Mark,
     &Check::checkColor,
     {&Check::boxChecked, &Check::boxCheckedHot, &Check::boxCheckedPressed}},
    {"disabled check mark", DisabledText, &Check::checkColor, {&Check::boxCheckedDisabled}},
};

template <>
inline constexpr ContrastRule<Select> kContrastRules<Select>[] = {
    {"text", Text, &Select::text, {&Select::surface, &Select::hotSurface, &Select::pressedSurface}},
    {"disabled text", DisabledText, &Select::text, {&Select::disabledSurface}},
    {"edge", Edge, {}, {&Select::surface, &Select::hotSurface, &Select::pressedSurface}},
    {"arrow", Mark, &Select::arrowColor, {&Select::arrowSurface}, &Select::surface},
    {"hot arrow", Mark, &Select::arrowColor, {&Select::arrowHotSurface}, &Select::hotSurface},
    {"pressed arrow", Mark, &Select::arrowColor, {&Select::arrowPressedSurface}, &Select::pressedSurface},
    {"option text",
     Text,
     &Select::text,
     {&Select::optionHotSurface, &Select::optionSelectedSurface},
     &Select::dropdownSurface},
    {"list text", Text, &Select::text, {&Select::dropdownSurface}},
};

template <>
inline constexpr ContrastRule<List> kContrastRules<List>[] = {
    {"text", Text, &List::text, {&List::row, &List::rowHot, &List::rowPressed}, &List::surface},
    {"selected text", Text, &List::selectedText, {&List::selectedRow, &List::selectedRowHot}, &List::surface},
    {"disabled text", DisabledText, &List::disabledText, {&List::row}, &List::surface},
    {"selected rail", Edge, {}, {&List::selectedRail}, &List::selectedRow},
};

template <>
inline constexpr ContrastRule<Date> kContrastRules<Date>[] = {
    {"text", Text, &Date::text, {&Date::surface, &Date::hotSurface, &Date::pressedSurface}},
    {"disabled text", DisabledText, &Date::text, {&Date::disabledSurface}},
    {"edge", Edge, {}, {&Date::surface, &Date::hotSurface, &Date::pressedSurface}},
    {"arrow", Mark, &Date::arrowColor, {&Date::arrowSurface}, &Date::surface},
    {"hot arrow", Mark, &Date::arrowColor, {&Date::arrowHotSurface}, &Date::hotSurface},
    {"pressed arrow", Mark, &Date::arrowColor, {&Date::arrowPressedSurface}, &Date::pressedSurface},
    {"month", Text, &Date::headerText, {&Date::headerSurface}, &Date::popupSurface},
    {"weekday", Text, &Date::weekdayText, {&Date::popupSurface}},
    {"day",
     Text,
     &Date::dayText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface,
      &Date::popupSurface},
     &Date::popupSurface},
    {"saturday",
     Text,
     &Date::saturdayText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface},
     &Date::popupSurface},
    {"sunday",
     Text,
     &Date::sundayText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface},
     &Date::popupSurface},
    {"weekend",
     Text,
     &Date::weekendText,
     {&Date::dayHotSurface, &Date::dayPressedSurface, &Date::daySelectedSurface, &Date::todaySurface},
     &Date::popupSurface},
    {"day of another month", DisabledText, &Date::mutedDayText, {&Date::popupSurface, &Date::dayHotSurface}},
    {"today", Edge, {}, {&Date::todaySurface, &Date::daySelectedSurface}, &Date::popupSurface},
};

template <>
inline constexpr ContrastRule<Menu> kContrastRules<Menu>[] = {
    {"item",
     Text,
     &Menu::itemText,
     {&Menu::itemSurface, &Menu::itemHotSurface, &Menu::itemPressedSurface, &Menu::itemActiveSurface},
     &Menu::surface},
    {"popup item",
     Text,
     &Menu::itemText,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
    {"shortcut",
     Text,
     &Menu::shortcutText,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
    {"disabled item", DisabledText, &Menu::itemText, {&Menu::popupSurface, &Menu::surface}},
    {"submenu arrow",
     Mark,
     &Menu::arrow,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
    {"check",
     Mark,
     &Menu::check,
     {&Menu::popupSurface, &Menu::popupItemHotSurface, &Menu::popupItemPressedSurface},
     &Menu::popupSurface},
};

template <>
inline constexpr ContrastRule<Table> kContrastRules<Table>[] = {
    {"row", Text, &Table::rowText, {&Table::row}, &Table::surface},
    {"selected row", Text, &Table::selectedText, {&Table::selectedRow}, &Table::surface},
    {"heading", Text, &Table::headerText, {&Table::header}},
    {"selected rail", Edge, {}, {&Table::selectedRail}, &Table::selectedRow},
    {"sort indicator", Mark, &Table::sortIndicator, {&Table::header}},
    {"hot sort indicator", Mark, &Table::sortIndicatorHot, {&Table::header}},
    {"hot resize grip", Mark, &Table::resizeGripHot, {&Table::header}},
};

template <>
inline constexpr ContrastRule<Rich> kContrastRules<Rich>[] = {
    {"text", Text, &Rich::text, {&Rich::surface}},
    {"link", Text, &Rich::linkText, {&Rich::surface}},
    {"icon", Edge, {}, {&Rich::icon}, &Rich::surface},
};

template <>
inline constexpr ContrastRule<Input> kContrastRules<Input>[] = {
    {"text",
     Text,
     &Input::text,
     {&Input::surface, &Input::hotSurface, &Input::pressedSurface, &Input::focusedSurface}},
    {"placeholder or text of a locked field",
     Text,
     &Input::placeholderText,
     {&Input::surface, &Input::hotSurface, &Input::pressedSurface, &Input::focusedSurface,
      &Input::disabledSurface}},
    {"disabled text", DisabledText, &Input::text, {&Input::disabledSurface}},
    {"edge", Edge, {}, {&Input::surface, &Input::hotSurface, &Input::pressedSurface, &Input::focusedSurface}},
    {"caret",
     Mark,
     &Input::caretColor,
     {&Input::surface, &Input::hotSurface, &Input::pressedSurface, &Input::focusedSurface}},
    {"attachment", Text, &Input::attachmentText, {&Input::attachmentSurface}, &Input::surface},
    {"attachment icon",
     Mark,
     &Input::attachmentIconColor,
     {&Input::attachmentSurface, &Input::attachmentRemoveSurface},
     &Input::surface},
};

template <>
inline constexpr ContrastRule<Selectable> kContrastRules<Selectable>[] = {
    {"text", Text, &Selectable::text, {&Selectable::surface}},
    {"selected text", Text, &Selectable::selectedText, {&Selectable::selection}, &Selectable::surface},
    {"disabled text", DisabledText, &Selectable::text, {&Selectable::surface}},
};

template <>
inline constexpr ContrastRule<Popup> kContrastRules<Popup>[] = {
    {"title", Text, &Popup::titleText, {&Popup::header}, &Popup::surface},
    {"message", Text, &Popup::messageText, {&Popup::surface}},
    {"glyph", Text, &Popup::iconText, {&Popup::icon}, &Popup::surface},
};

template <>
inline constexpr ContrastRule<Tip> kContrastRules<Tip>[] = {
    {"text", Text, &Tip::textStyle, {&Tip::surface}},
    {"glyph", Text, &Tip::iconText, {&Tip::icon}, &Tip::surface},
    {"badge", Edge, {}, {&Tip::icon}, &Tip::surface},
    {"rail", Edge, {}, {&Tip::accentRail}, &Tip::surface},
};

} // namespace vela::checks
