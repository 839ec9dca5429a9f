// The style record of each control kind: plain values made of surfaces, fonts, shapes, colours and metrics
// (pixels at 96 DPI), one per variant. Builders derive them from a theme, skins override them field by field,
// controls paint with them.
#pragma once

#include "vela/theme/records/surface_style.h"
#include "vela/theme/records/theme.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela {

// One value for each interaction state.
template <typename T>
struct PerState {
    T normal;
    T hot;
    T pressed;
    T disabled;
    T active;

    static constexpr T PerState::*kMembers[kVisualStateCount] = {
        &PerState::normal, &PerState::hot, &PerState::pressed, &PerState::disabled, &PerState::active};

    T& operator[](VisualState state) noexcept { return this->*kMembers[static_cast<int>(state)]; }
    const T& operator[](VisualState state) const noexcept { return this->*kMembers[static_cast<int>(state)]; }
    friend bool operator==(const PerState&, const PerState&) = default;
};

// The glow colour of a surface is also that of the focus ring, which is drawn around it on what it lies on,
// whether the surface glows or not. A text field shows its focus by a surface of its own instead, and has the
// ring only while it is locked.
//
// Nothing in this toolkit is painted by the records of bitmap buttons, cards, status chips, scroll bars,
// select boxes, list boxes, date inputs, tabs, menu bars, table lists, rich texts and selectable texts: they
// are derived, read and checked for programs that bring such controls.
//
// A surface carries its own shape; the shape fields of a record name the shape of the part they stand for and
// are written into that part's surfaces when the style sheet is finished.

struct ScrollAcceleration {
    bool enabled = true;
    std::int32_t strength = 35;       // percent added per fast step
    std::int32_t maxMultiplier = 6;   // times the plain step
    std::int32_t fastIntervalMs = 60; // steps closer together than this count as fast
    std::int32_t resetMs = 220;       // a pause this long starts over
    friend bool operator==(const ScrollAcceleration&, const ScrollAcceleration&) = default;
};

using TextStyle = FontSpec;

struct ButtonStyle {
    PerState<FontSpec> text;
    PerState<SurfaceStyle> surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ShapeKind hitShape = ShapeKind::RoundedRect;
    bool useSurfaceHitTesting = true;
    friend bool operator==(const ButtonStyle&, const ButtonStyle&) = default;
};

struct BitmapButtonStyle {
    FontSpec text;
    Color tint = hexColor(0xFFFFFF);
    SurfaceStyle image;
    friend bool operator==(const BitmapButtonStyle&, const BitmapButtonStyle&) = default;
};

struct PanelStyle {
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::Rect;
    std::int32_t padding = 12; // not used: what stands on a panel has its place from its creator
    friend bool operator==(const PanelStyle&, const PanelStyle&) = default;
};

struct CardStyle {
    SurfaceStyle header;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ShapeKind headerShape = ShapeKind::RoundedRect;
    FontSpec titleText;
    FontSpec subtitleText;
    std::int32_t headerHeight = 40;
    std::int32_t contentPadding = 16;
    friend bool operator==(const CardStyle&, const CardStyle&) = default;
};

struct ChromeTitleBarStyle {
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::Rect;
    FontSpec titleText;
    ButtonStyle titleButton;
    SurfaceStyle closeHotSurface; // in the shape of the title buttons
    SurfaceStyle closePressedSurface;
    Color closeHotColor = hexColor(0xFFFFFF);
    Color closePressedColor = hexColor(0xFFFFFF);
    std::int32_t buttonWidth = 46;
    std::int32_t buttonHeight = 32;
    std::int32_t buttonTop = 0;
    std::int32_t buttonGap = 0;
    std::int32_t headerActionGap = 4;
    std::int32_t headerActionGroupGap = 12;
    std::int32_t rightMargin = 0;
    std::int32_t iconSize = 16;
    std::int32_t iconLeft = 12;
    std::int32_t titleLeft = 38;
    friend bool operator==(const ChromeTitleBarStyle&, const ChromeTitleBarStyle&) = default;
};

struct StatusChipStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::Pill;
    ShapeKind badgeShape = ShapeKind::Pill;
    SurfaceStyle badge;
    std::int32_t badgeSize = 8;
    std::int32_t badgeLeft = 10;
    std::int32_t textLeft = 24;
    friend bool operator==(const StatusChipStyle&, const StatusChipStyle&) = default;
};

struct ProgressBarStyle {
    SurfaceStyle frame;
    ShapeKind shape = ShapeKind::Pill;
    SurfaceStyle fill;
    ShapeKind frameShape = ShapeKind::Pill;
    ShapeKind trackShape = ShapeKind::Pill;
    ShapeKind fillShape = ShapeKind::Pill;
    SurfaceStyle track;
    FontSpec labelText;
    std::int32_t insetX = 3;
    std::int32_t insetY = 3;
    std::int32_t labelWidth = 48;
    std::int32_t labelPadding = 8;
    friend bool operator==(const ProgressBarStyle&, const ProgressBarStyle&) = default;
};

struct ScrollBarStyle {
    ShapeKind shape = ShapeKind::Rect;
    ShapeKind trackShape = ShapeKind::Pill;
    SurfaceStyle track;
    ShapeKind thumbShape = ShapeKind::Pill;
    ShapeKind buttonShape = ShapeKind::RoundedRect;
    PerState<SurfaceStyle> thumb;
    PerState<SurfaceStyle> decrementButton;
    PerState<SurfaceStyle> incrementButton;
    Color arrow = hexColor(0xB0CCC4);
    std::int32_t buttonExtent = 16;
    std::int32_t minThumbExtent = 24;
    std::int32_t trackPadding = 2;
    std::int32_t trackThickness = 12;
    std::int32_t thumbThickness = 8;
    bool showButtons = false;
    ScrollAcceleration acceleration;
    friend bool operator==(const ScrollBarStyle&, const ScrollBarStyle&) = default;
};

struct CheckBoxStyle {
    FontSpec text;
    ShapeKind shape = ShapeKind::RoundedRect;
    std::int32_t textLeft = 28;
    SurfaceStyle boxUnchecked;
    SurfaceStyle boxUncheckedHot;
    SurfaceStyle boxUncheckedPressed;
    SurfaceStyle boxUncheckedDisabled;
    SurfaceStyle boxChecked;
    SurfaceStyle boxCheckedHot;
    SurfaceStyle boxCheckedPressed;
    SurfaceStyle boxCheckedDisabled;
    Color checkColor = hexColor(0xF6EECF);
    std::int32_t boxSize = 18;
    friend bool operator==(const CheckBoxStyle&, const CheckBoxStyle&) = default;
};

struct SelectBoxStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ScrollAcceleration scrollAcceleration;
    ShapeKind arrowShape = ShapeKind::RoundedRect;
    ShapeKind dropdownShape = ShapeKind::RoundedRect;
    SurfaceStyle hotSurface;
    SurfaceStyle pressedSurface;
    SurfaceStyle disabledSurface;
    SurfaceStyle arrowSurface;
    SurfaceStyle arrowHotSurface;
    SurfaceStyle arrowPressedSurface;
    SurfaceStyle arrowDisabledSurface;
    SurfaceStyle dropdownSurface;
    SurfaceStyle optionHotSurface;
    SurfaceStyle optionSelectedSurface;
    ScrollBarStyle scrollBar;
    Color arrowColor = hexColor(0xB0CCC4);
    std::int32_t arrowWidth = 32;
    std::int32_t itemHeight = 30;
    std::int32_t maxVisibleItems = 8;
    std::int32_t dropdownGap = 4;
    std::int32_t dropdownPadding = 4;
    std::int32_t dropdownItemPaddingX = 10;
    std::int32_t dropdownItemPaddingY = 4;
    std::int32_t dropdownScrollBarWidth = 12;
    std::int32_t dropdownScrollRailGap = 4;
    bool dropdownEmbeddedScrollRail = true;
    friend bool operator==(const SelectBoxStyle&, const SelectBoxStyle&) = default;
};

struct ListBoxStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ScrollAcceleration scrollAcceleration;
    ScrollBarStyle scrollBar;
    ShapeKind rowShape = ShapeKind::RoundedRect;
    ShapeKind selectedRowShape = ShapeKind::RoundedRect;
    ShapeKind selectedRailShape = ShapeKind::Pill;
    SurfaceStyle row;
    SurfaceStyle rowHot;
    SurfaceStyle rowPressed;
    SurfaceStyle selectedRow;
    SurfaceStyle selectedRowHot;
    SurfaceStyle selectedRail;
    FontSpec selectedText;
    FontSpec disabledText;
    Color separator = hexColor(0x224244);
    std::int32_t rowHeight = 30;
    std::int32_t railWidth = 3;
    std::int32_t linePadding = 4;
    std::int32_t contentInsetX = 4;
    std::int32_t contentInsetY = 4;
    std::int32_t itemPaddingX = 10;
    std::int32_t itemPaddingY = 4;
    std::int32_t scrollBarWidth = 12;
    std::int32_t scrollRailGap = 4;
    bool showSeparators = false;
    friend bool operator==(const ListBoxStyle&, const ListBoxStyle&) = default;
};

struct DateInputStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    std::int32_t headerHeight = 36;
    ShapeKind arrowShape = ShapeKind::RoundedRect;
    SurfaceStyle hotSurface;
    SurfaceStyle pressedSurface;
    SurfaceStyle disabledSurface;
    SurfaceStyle arrowSurface;
    SurfaceStyle arrowHotSurface;
    SurfaceStyle arrowPressedSurface;
    Color arrowColor = hexColor(0xB0CCC4);
    std::int32_t arrowWidth = 32;
    ShapeKind popupShape = ShapeKind::RoundedRect;
    SurfaceStyle popupSurface;
    SurfaceStyle headerSurface;
    SurfaceStyle dayHotSurface;
    SurfaceStyle dayPressedSurface;
    SurfaceStyle daySelectedSurface;
    SurfaceStyle todaySurface;
    FontSpec headerText;
    FontSpec weekdayText;
    FontSpec dayText;
    FontSpec weekendText;
    FontSpec saturdayText;
    FontSpec sundayText;
    FontSpec mutedDayText;
    std::int32_t popupWidth = 288;
    std::int32_t popupPadding = 8;
    std::int32_t popupGap = 4;
    std::int32_t weekdayHeight = 24;
    std::int32_t dayCellHeight = 32;
    std::int32_t navButtonExtent = 28;
    friend bool operator==(const DateInputStyle&, const DateInputStyle&) = default;
};

struct TabsStyle {
    ShapeKind shape = ShapeKind::RoundedRect;
    ButtonStyle itemButton;
    std::int32_t verticalItemHeight = 36;
    friend bool operator==(const TabsStyle&, const TabsStyle&) = default;
};

struct MenuBarStyle {
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::Rect;
    Color arrow = hexColor(0xB0CCC4);
    Color separator = hexColor(0x224244);
    std::int32_t itemPaddingX = 10;
    ShapeKind popupShape = ShapeKind::RoundedRect;
    SurfaceStyle popupSurface;
    std::int32_t popupPadding = 4;
    std::int32_t popupGap = 2;
    ShapeKind itemShape = ShapeKind::RoundedRect;
    ShapeKind popupItemShape = ShapeKind::RoundedRect;
    SurfaceStyle itemSurface;
    SurfaceStyle itemHotSurface;
    SurfaceStyle itemPressedSurface;
    SurfaceStyle itemActiveSurface;
    SurfaceStyle popupItemHotSurface;
    SurfaceStyle popupItemPressedSurface;
    FontSpec itemText;
    FontSpec shortcutText;
    Color check = hexColor(0xC49452);
    std::int32_t height = 32;
    std::int32_t itemGap = 2;
    std::int32_t popupItemHeight = 30;
    std::int32_t popupMinWidth = 180;
    std::int32_t checkColumnWidth = 28;
    std::int32_t shortcutColumnWidth = 96;
    std::int32_t submenuArrowWidth = 24;
    std::int32_t separatorHeight = 9;
    bool drawSurface = true;
    bool drawItemSurface = false;
    friend bool operator==(const MenuBarStyle&, const MenuBarStyle&) = default;
};

struct TableListStyle {
    SurfaceStyle header;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ShapeKind headerShape = ShapeKind::Rect;
    std::int32_t headerHeight = 32;
    ScrollAcceleration scrollAcceleration;
    ShapeKind rowShape = ShapeKind::Rect;
    ShapeKind selectedRowShape = ShapeKind::Rect;
    ShapeKind selectedRailShape = ShapeKind::Pill;
    SurfaceStyle row;
    SurfaceStyle selectedRow;
    SurfaceStyle selectedRail;
    FontSpec selectedText;
    Color separator = hexColor(0x224244);
    std::int32_t rowHeight = 30;
    std::int32_t railWidth = 3;
    std::int32_t linePadding = 4;
    std::int32_t contentInsetX = 8;
    std::int32_t contentInsetY = 4;
    FontSpec headerText;
    FontSpec rowText;
    FontSpec highSeverityText;
    Color highSeverityFill = hexColor(0x5A1E1E);
    Color mediumSeverityFill = hexColor(0x5A451E);
    Color lowSeverityFill = hexColor(0x1E4A2E);
    Color resizeGrip = hexColor(0x224244);
    Color resizeGripHot = hexColor(0xC49452);
    Color sortIndicator = hexColor(0xB0CCC4);
    Color sortIndicatorHot = hexColor(0xE2AA58);
    std::int32_t resizeGripWidth = 6;
    std::int32_t sortIndicatorWidth = 16;
    friend bool operator==(const TableListStyle&, const TableListStyle&) = default;
};

struct RichTextStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ShapeKind iconShape = ShapeKind::Pill;
    SurfaceStyle icon;
    FontSpec linkText;
    std::int32_t paddingX = 12;
    std::int32_t paddingY = 10;
    std::int32_t lineHeight = 20;
    friend bool operator==(const RichTextStyle&, const RichTextStyle&) = default;
};

struct TextInputStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    ScrollAcceleration scrollAcceleration;
    SurfaceStyle hotSurface;
    SurfaceStyle pressedSurface;
    SurfaceStyle disabledSurface;
    std::int32_t paddingX = 10;
    std::int32_t paddingY = 6;
    std::int32_t lineHeight = 20;
    ShapeKind attachmentShape = ShapeKind::Pill;
    ShapeKind attachmentImageShape = ShapeKind::RoundedRect;
    ShapeKind attachmentRemoveShape = ShapeKind::Pill;
    SurfaceStyle focusedSurface;
    SurfaceStyle selection;
    SurfaceStyle attachmentSurface;
    SurfaceStyle attachmentImageSurface;
    SurfaceStyle attachmentRemoveSurface;
    FontSpec placeholderText;
    FontSpec attachmentText;
    Color caretColor = hexColor(0xF6EECF);
    Color attachmentIconColor = hexColor(0xB0CCC4);
    std::int32_t attachmentHeight = 24;
    std::int32_t attachmentGap = 6;
    std::int32_t attachmentRemoveExtent = 16;
    bool showAttachmentRemove = true;
    friend bool operator==(const TextInputStyle&, const TextInputStyle&) = default;
};

struct SelectableTextStyle {
    FontSpec text;
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::Rect;
    ScrollAcceleration scrollAcceleration;
    FontSpec selectedText;
    std::int32_t paddingX = 4;
    std::int32_t paddingY = 2;
    std::int32_t lineHeight = 20;
    SurfaceStyle selection;
    friend bool operator==(const SelectableTextStyle&, const SelectableTextStyle&) = default;
};

struct PopupStyle {
    SurfaceStyle header;
    SurfaceStyle footer; // the strip under a row of actions; its border is the line above it
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    std::int32_t shadowOffsetX = 0;
    std::int32_t shadowOffsetY = 4;
    bool showShadow = true;
    ShapeKind headerShape = ShapeKind::RoundedRect;
    FontSpec titleText;
    std::int32_t headerHeight = 64;
    std::int32_t iconSize = 40;
    ShapeKind iconShape = ShapeKind::Pill;
    SurfaceStyle icon;
    std::int32_t paddingX = 24;
    std::int32_t paddingY = 20;
    ButtonStyle closeButton;
    ButtonStyle primaryAction;
    ButtonStyle secondaryAction;
    FontSpec messageText;
    FontSpec iconText;
    std::int32_t actionWidth = 128;
    std::int32_t actionHeight = 34;
    std::int32_t actionGap = 10;
    friend bool operator==(const PopupStyle&, const PopupStyle&) = default;
};

struct TooltipStyle {
    SurfaceStyle surface;
    ShapeKind shape = ShapeKind::RoundedRect;
    Color shadow = hexColor(0x000000);
    std::int32_t shadowOffsetX = 0;
    std::int32_t shadowOffsetY = 2;
    bool showShadow = true;
    FontSpec textStyle;
    std::int32_t iconSize = 16;
    ScrollAcceleration scrollAcceleration; // not used: the mouse goes through a tooltip
    ShapeKind iconShape = ShapeKind::Pill;
    SurfaceStyle icon;
    std::int32_t paddingX = 10;
    std::int32_t paddingY = 7;
    FontSpec iconText;
    ShapeKind railShape = ShapeKind::Pill;
    SurfaceStyle accentRail;
    std::int32_t maxWidth = 320;
    std::int32_t gap = 8;
    bool showAccentRail = false;
    bool showIcon = false;
    friend bool operator==(const TooltipStyle&, const TooltipStyle&) = default;
};

} // namespace vela
