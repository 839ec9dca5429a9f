// The fields of the style records of controls that hold lists, menus or text. Within a record shapes stand
// before the surfaces they shape, so that a surface's own "shape" has the last word.
#include "vela/theme/fields/field_rows.h"

namespace vela {
namespace {

struct SelectBoxRows {
    using Record = SelectBoxStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(arrowShape, "arrowShape"),
        VELA_FIELD(dropdownShape, "dropdownShape"),
        VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(scrollAcceleration, "scrollAcceleration"),
        VELA_SHAPED(hotSurface, shape, "hotSurface"),
        VELA_SHAPED(pressedSurface, shape, "pressedSurface"),
        VELA_SHAPED(disabledSurface, shape, "disabledSurface"),
        VELA_SHAPED(arrowSurface, arrowShape, "arrowSurface"),
        VELA_SHAPED(arrowHotSurface, arrowShape, "arrowHotSurface"),
        VELA_SHAPED(arrowPressedSurface, arrowShape, "arrowPressedSurface"),
        VELA_SHAPED(arrowDisabledSurface, arrowShape, "arrowDisabledSurface"),
        VELA_SHAPED(dropdownSurface, dropdownShape, "dropdownSurface"),
        VELA_FIELD(optionHotSurface, "optionHotSurface"),
        VELA_FIELD(optionSelectedSurface, "optionSelectedSurface"),
        VELA_FIELD(scrollBar, "scrollBar"),
        VELA_FIELD(arrowColor, "arrowColor"),
        VELA_FIELD(arrowWidth, "arrowWidth"),
        VELA_FIELD(itemHeight, "itemHeight"),
        VELA_FIELD(maxVisibleItems, "maxVisibleItems", FieldKind::Integer),
        VELA_FIELD(dropdownGap, "dropdownGap"),
        VELA_FIELD(dropdownPadding, "dropdownPadding"),
        VELA_FIELD(dropdownItemPaddingX, "dropdownItemPaddingX"),
        VELA_FIELD(dropdownItemPaddingY, "dropdownItemPaddingY"),
        VELA_FIELD(dropdownScrollBarWidth, "dropdownScrollBarWidth"),
        VELA_FIELD(dropdownScrollRailGap, "dropdownScrollRailGap"),
        VELA_FIELD(dropdownEmbeddedScrollRail, "dropdownEmbeddedScrollRail"),
    };
};

struct ListBoxRows {
    using Record = ListBoxStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(rowShape, "rowShape"),
        VELA_FIELD(selectedRowShape, "selectedRowShape"),
        VELA_FIELD(selectedRailShape, "selectedRailShape"),
        VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(scrollAcceleration, "scrollAcceleration"),
        VELA_FIELD(scrollBar, "scrollBar"),
        VELA_SHAPED(row, rowShape, "row"),
        VELA_SHAPED(rowHot, rowShape, "rowHot"),
        VELA_SHAPED(rowPressed, rowShape, "rowPressed"),
        VELA_SHAPED(selectedRow, selectedRowShape, "selectedRow"),
        VELA_SHAPED(selectedRowHot, selectedRowShape, "selectedRowHot"),
        VELA_SHAPED(selectedRail, selectedRailShape, "selectedRail"),
        VELA_FIELD(selectedText, "selectedText"),
        VELA_FIELD(disabledText, "disabledText"),
        VELA_FIELD(separator, "separator"),
        VELA_FIELD(rowHeight, "rowHeight"),
        VELA_FIELD(railWidth, "railWidth"),
        VELA_FIELD(linePadding, "linePadding"),
        VELA_FIELD(contentInsetX, "contentInsetX"),
        VELA_FIELD(contentInsetY, "contentInsetY"),
        VELA_FIELD(itemPaddingX, "itemPaddingX"),
        VELA_FIELD(itemPaddingY, "itemPaddingY"),
        VELA_FIELD(scrollBarWidth, "scrollBarWidth"),
        VELA_FIELD(scrollRailGap, "scrollRailGap"),
        VELA_FIELD(showSeparators, "showSeparators"),
    };
};

struct DateInputRows {
    using Record = DateInputStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(arrowShape, "arrowShape"),
        VELA_FIELD(popupShape, "popupShape"),
        VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(headerHeight, "headerHeight"),
        VELA_SHAPED(hotSurface, shape, "hotSurface"),
        VELA_SHAPED(pressedSurface, shape, "pressedSurface"),
        VELA_SHAPED(disabledSurface, shape, "disabledSurface"),
        VELA_SHAPED(arrowSurface, arrowShape, "arrowSurface"),
        VELA_SHAPED(arrowHotSurface, arrowShape, "arrowHotSurface"),
        VELA_SHAPED(arrowPressedSurface, arrowShape, "arrowPressedSurface"),
        VELA_FIELD(arrowColor, "arrowColor"),
        VELA_FIELD(arrowWidth, "arrowWidth"),
        VELA_SHAPED(popupSurface, popupShape, "popupSurface"),
        VELA_FIELD(headerSurface, "headerSurface"),
        VELA_FIELD(dayHotSurface, "dayHotSurface"),
        VELA_FIELD(dayPressedSurface, "dayPressedSurface"),
        VELA_FIELD(daySelectedSurface, "daySelectedSurface"),
        VELA_FIELD(todaySurface, "todaySurface"),
        VELA_FIELD(headerText, "headerText"),
        VELA_FIELD(weekdayText, "weekdayText"),
        VELA_FIELD(dayText, "dayText"),
        VELA_FIELD(weekendText, "weekendText"),
        VELA_FIELD(saturdayText, "saturdayText"),
        VELA_FIELD(sundayText, "sundayText"),
        VELA_FIELD(mutedDayText, "mutedDayText"),
        VELA_FIELD(popupWidth, "popupWidth"),
        VELA_FIELD(popupPadding, "popupPadding"),
        VELA_FIELD(popupGap, "popupGap"),
        VELA_FIELD(weekdayHeight, "weekdayHeight"),
        VELA_FIELD(dayCellHeight, "dayCellHeight"),
        VELA_FIELD(navButtonExtent, "navButtonExtent"),
    };
};

struct MenuBarRows {
    using Record = MenuBarStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(popupShape, "popupShape"),
        VELA_FIELD(itemShape, "itemShape"),
        VELA_FIELD(popupItemShape, "popupItemShape"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(arrow, "arrow"),
        VELA_FIELD(separator, "separator"),
        VELA_FIELD(itemPaddingX, "itemPaddingX"),
        VELA_SHAPED(popupSurface, popupShape, "popupSurface"),
        VELA_FIELD(popupPadding, "popupPadding"),
        VELA_FIELD(popupGap, "popupGap"),
        VELA_SHAPED(itemSurface, itemShape, "itemSurface"),
        VELA_SHAPED(itemHotSurface, itemShape, "itemHotSurface"),
        VELA_SHAPED(itemPressedSurface, itemShape, "itemPressedSurface"),
        VELA_SHAPED(itemActiveSurface, itemShape, "itemActiveSurface"),
        VELA_SHAPED(popupItemHotSurface, popupItemShape, "popupItemHotSurface"),
        VELA_SHAPED(popupItemPressedSurface, popupItemShape, "popupItemPressedSurface"),
        VELA_FIELD(itemText, "itemText"),
        VELA_FIELD(shortcutText, "shortcutText"),
        VELA_FIELD(check, "check"),
        VELA_FIELD(height, "height"),
        VELA_FIELD(itemGap, "itemGap"),
        VELA_FIELD(popupItemHeight, "popupItemHeight"),
        VELA_FIELD(popupMinWidth, "popupMinWidth"),
        VELA_FIELD(checkColumnWidth, "checkColumnWidth"),
        VELA_FIELD(shortcutColumnWidth, "shortcutColumnWidth"),
        VELA_FIELD(submenuArrowWidth, "submenuArrowWidth"),
        VELA_FIELD(separatorHeight, "separatorHeight"),
        VELA_FIELD(drawSurface, "drawSurface"),
        VELA_FIELD(drawItemSurface, "drawItemSurface"),
    };
};

struct TableListRows {
    using Record = TableListStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(headerShape, "headerShape"),
        VELA_FIELD(rowShape, "rowShape"),
        VELA_FIELD(selectedRowShape, "selectedRowShape"),
        VELA_FIELD(selectedRailShape, "selectedRailShape"),
        VELA_SHAPED(header, headerShape, "header"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(headerHeight, "headerHeight"),
        VELA_FIELD(scrollAcceleration, "scrollAcceleration"),
        VELA_SHAPED(row, rowShape, "row"),
        VELA_SHAPED(selectedRow, selectedRowShape, "selectedRow"),
        VELA_SHAPED(selectedRail, selectedRailShape, "selectedRail"),
        VELA_FIELD(selectedText, "selectedText"),
        VELA_FIELD(separator, "separator"),
        VELA_FIELD(rowHeight, "rowHeight"),
        VELA_FIELD(railWidth, "railWidth"),
        VELA_FIELD(linePadding, "linePadding"),
        VELA_FIELD(contentInsetX, "contentInsetX"),
        VELA_FIELD(contentInsetY, "contentInsetY"),
        VELA_FIELD(headerText, "headerText"),
        VELA_FIELD(rowText, "rowText"),
        VELA_FIELD(highSeverityText, "highSeverityText"),
        VELA_FIELD(highSeverityFill, "highSeverityFill"),
        VELA_FIELD(mediumSeverityFill, "mediumSeverityFill"),
        VELA_FIELD(lowSeverityFill, "lowSeverityFill"),
        VELA_FIELD(resizeGrip, "resizeGrip"),
        VELA_FIELD(resizeGripHot, "resizeGripHot"),
        VELA_FIELD(sortIndicator, "sortIndicator"),
        VELA_FIELD(sortIndicatorHot, "sortIndicatorHot"),
        VELA_FIELD(resizeGripWidth, "resizeGripWidth"),
        VELA_FIELD(sortIndicatorWidth, "sortIndicatorWidth"),
    };
};

struct TextInputRows {
    using Record = TextInputStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(attachmentShape, "attachmentShape"),
        VELA_FIELD(attachmentImageShape, "attachmentImageShape"),
        VELA_FIELD(attachmentRemoveShape, "attachmentRemoveShape"),
        VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(scrollAcceleration, "scrollAcceleration"),
        VELA_SHAPED(hotSurface, shape, "hotSurface"),
        VELA_SHAPED(pressedSurface, shape, "pressedSurface"),
        VELA_SHAPED(disabledSurface, shape, "disabledSurface"),
        VELA_FIELD(paddingX, "paddingX"),
        VELA_FIELD(paddingY, "paddingY"),
        VELA_FIELD(lineHeight, "lineHeight"),
        VELA_SHAPED(focusedSurface, shape, "focusedSurface"),
        VELA_FIELD(selection, "selection"),
        VELA_SHAPED(attachmentSurface, attachmentShape, "attachmentSurface"),
        VELA_SHAPED(attachmentImageSurface, attachmentImageShape, "attachmentImageSurface"),
        VELA_SHAPED(attachmentRemoveSurface, attachmentRemoveShape, "attachmentRemoveSurface"),
        VELA_FIELD(placeholderText, "placeholderText"),
        VELA_FIELD(attachmentText, "attachmentText"),
        VELA_FIELD(caretColor, "caretColor"),
        VELA_FIELD(attachmentIconColor, "attachmentIconColor"),
        VELA_FIELD(attachmentHeight, "attachmentHeight"),
        VELA_FIELD(attachmentGap, "attachmentGap"),
        VELA_FIELD(attachmentRemoveExtent, "attachmentRemoveExtent"),
        VELA_FIELD(showAttachmentRemove, "showAttachmentRemove"),
    };
};

} // namespace

VELA_FIELD_TABLE(SelectBoxRows, "select box");
VELA_FIELD_TABLE(ListBoxRows, "list box");
VELA_FIELD_TABLE(DateInputRows, "date input");
VELA_FIELD_TABLE(MenuBarRows, "menu bar");
VELA_FIELD_TABLE(TableListRows, "table list");
VELA_FIELD_TABLE(TextInputRows, "text input");

} // namespace vela
