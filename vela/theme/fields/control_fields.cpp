// The fields of the smaller controls' style records. Within a record shapes stand before the
// surfaces they shape, so that a surface's own "shape" has the last word.
#include "vela/theme/fields/field_rows.h"

namespace vela {
namespace {

struct ScrollAccelerationRows {
    using Record = ScrollAcceleration;
    static constexpr Field kRows[] = {
        VELA_FIELD(enabled, "enabled enable"),
        VELA_FIELD(strength, "strength factor", FieldKind::Integer),
        VELA_FIELD(maxMultiplier, "maxMultiplier maximumMultiplier", FieldKind::Integer),
        VELA_FIELD(fastIntervalMs, "fastIntervalMs referenceIntervalMs", FieldKind::Integer),
        VELA_FIELD(resetMs, "resetMs burstResetMs", FieldKind::Integer),
    };
};

// "text" and "surface" stand for all states; a state's own block, in any of its spellings, has the last word.
struct ButtonRows {
    using Record = ButtonStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(hitShape, "shape fallbackShape hitShape"),
        VELA_FIELD(text, "text text* text.* *.text"),
        VELA_SHAPED(surface, shape, "surface surface* surface.* *"),
        VELA_FIELD(useSurfaceHitTesting, "useSurfaceHitTesting"),
    };
};

// The image block of a bitmap button is a surface and the bitmap of that surface in one.
struct BitmapButtonRows {
    using Record = BitmapButtonStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(text, "text textStyle"),
        VELA_FIELD(tint, "tint"),
        VELA_FIELD(image, "image bitmap", FieldKind::SurfaceImage, &Fields<BitmapSkin>::kTable),
        VELA_FIELD(image, "image bitmap"),
    };
};

struct PanelRows {
    using Record = PanelStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(padding, "padding"),
    };
};

struct CardRows {
    using Record = CardStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),   VELA_FIELD(headerShape, "headerShape"),
        VELA_SHAPED(header, headerShape, "header"), VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(titleText, "titleText"),         VELA_FIELD(subtitleText, "subtitleText"),
        VELA_FIELD(headerHeight, "headerHeight"),   VELA_FIELD(contentPadding, "contentPadding"),
    };
};

struct ChromeTitleBarRows {
    using Record = ChromeTitleBarStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(titleText, "titleText"),
        VELA_FIELD(titleButton, "titleButton"),
        VELA_FIELD(closeHotSurface, "closeHotSurface"),
        VELA_FIELD(closePressedSurface, "closePressedSurface"),
        VELA_FIELD(closeHotColor, "closeHotColor"),
        VELA_FIELD(closePressedColor, "closeHotColor closePressedColor"),
        VELA_FIELD(buttonWidth, "buttonWidth"),
        VELA_FIELD(buttonHeight, "buttonHeight"),
        VELA_FIELD(buttonTop, "buttonTop"),
        VELA_FIELD(buttonGap, "buttonGap"),
        VELA_FIELD(headerActionGap, "headerActionGap"),
        VELA_FIELD(headerActionGroupGap, "headerActionGroupGap"),
        VELA_FIELD(rightMargin, "rightMargin"),
        VELA_FIELD(iconSize, "iconSize"),
        VELA_FIELD(iconLeft, "iconLeft"),
        VELA_FIELD(titleLeft, "titleLeft"),
    };
};

struct StatusChipRows {
    using Record = StatusChipStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(badgeShape, "badgeShape"),
        VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_SHAPED(badge, badgeShape, "badge"),
        VELA_FIELD(badgeSize, "badgeSize"),
        VELA_FIELD(badgeLeft, "badgeLeft"),
        VELA_FIELD(textLeft, "textLeft"),
    };
};

// "shape" is that of all three parts unless a part names its own.
struct ProgressBarRows {
    using Record = ProgressBarStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(frameShape, "shape fallbackShape frameShape"),
        VELA_FIELD(trackShape, "shape fallbackShape trackShape"),
        VELA_FIELD(fillShape, "shape fallbackShape fillShape"),
        VELA_SHAPED(frame, frameShape, "frame"),
        VELA_SHAPED(fill, fillShape, "fill"),
        VELA_SHAPED(track, trackShape, "track"),
        VELA_FIELD(labelText, "labelText"),
        VELA_FIELD(insetX, "insetX"),
        VELA_FIELD(insetY, "insetY"),
        VELA_FIELD(labelWidth, "labelWidth"),
        VELA_FIELD(labelPadding, "labelPaddingX labelPadding"),
    };
};

// "shape" is that of all parts unless a part names its own.
struct ScrollBarRows {
    using Record = ScrollBarStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(trackShape, "shape fallbackShape trackShape"),
        VELA_FIELD(thumbShape, "shape fallbackShape thumbShape"),
        VELA_FIELD(buttonShape, "shape fallbackShape buttonShape"),
        VELA_SHAPED(track, trackShape, "track"),
        VELA_SHAPED(thumb, thumbShape, "thumb thumb* thumb.*"),
        VELA_SHAPED(decrementButton, buttonShape, "decrementButton decrementButton* decrementButton.*"),
        VELA_SHAPED(incrementButton, buttonShape, "incrementButton incrementButton* incrementButton.*"),
        VELA_FIELD(arrow, "arrow"),
        VELA_FIELD(buttonExtent, "buttonExtent"),
        VELA_FIELD(minThumbExtent, "minThumbExtent"),
        VELA_FIELD(trackPadding, "trackPadding"),
        VELA_FIELD(trackThickness, "trackThickness"),
        VELA_FIELD(thumbThickness, "thumbThickness"),
        VELA_FIELD(showButtons, "showButtons"),
        VELA_FIELD(acceleration, "acceleration scrollAcceleration"),
    };
};

struct CheckBoxRows {
    using Record = CheckBoxStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(text, "text"),
        VELA_FIELD(textLeft, "textLeft"),
        VELA_SHAPED(boxUnchecked, shape, "boxUnchecked"),
        VELA_SHAPED(boxUncheckedHot, shape, "boxUncheckedHot"),
        VELA_SHAPED(boxUncheckedPressed, shape, "boxUncheckedPressed"),
        VELA_SHAPED(boxUncheckedDisabled, shape, "boxUncheckedDisabled"),
        VELA_SHAPED(boxChecked, shape, "boxChecked"),
        VELA_SHAPED(boxCheckedHot, shape, "boxCheckedHot"),
        VELA_SHAPED(boxCheckedPressed, shape, "boxCheckedPressed"),
        VELA_SHAPED(boxCheckedDisabled, shape, "boxCheckedDisabled"),
        VELA_FIELD(checkColor, "checkColor"),
        VELA_FIELD(boxSize, "boxSize"),
    };
};

struct RichTextRows {
    using Record = RichTextStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(iconShape, "iconShape"),
        VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_SHAPED(icon, iconShape, "icon"),
        VELA_FIELD(linkText, "linkText"),
        VELA_FIELD(paddingX, "paddingX"),
        VELA_FIELD(paddingY, "paddingY"),
        VELA_FIELD(lineHeight, "lineHeight"),
    };
};

struct SelectableTextRows {
    using Record = SelectableTextStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"), VELA_FIELD(text, "text"),
        VELA_SHAPED(surface, shape, "surface"),   VELA_FIELD(scrollAcceleration, "scrollAcceleration"),
        VELA_FIELD(selectedText, "selectedText"), VELA_FIELD(paddingX, "paddingX"),
        VELA_FIELD(paddingY, "paddingY"),         VELA_FIELD(lineHeight, "lineHeight"),
        VELA_FIELD(selection, "selection"),
    };
};

struct PopupRows {
    using Record = PopupStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(headerShape, "headerShape"),
        VELA_FIELD(iconShape, "iconShape"),
        VELA_SHAPED(header, headerShape, "header"),
        VELA_FIELD(footer, "footer"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(shadowOffsetX, "shadowOffsetX"),
        VELA_FIELD(shadowOffsetY, "shadowOffsetY"),
        VELA_FIELD(showShadow, "showShadow"),
        VELA_FIELD(titleText, "titleText"),
        VELA_FIELD(headerHeight, "headerHeight"),
        VELA_FIELD(iconSize, "iconSize"),
        VELA_SHAPED(icon, iconShape, "icon"),
        VELA_FIELD(paddingX, "paddingX"),
        VELA_FIELD(paddingY, "paddingY"),
        VELA_FIELD(closeButton, "closeButton"),
        VELA_FIELD(primaryAction, "primaryAction"),
        VELA_FIELD(secondaryAction, "secondaryAction"),
        VELA_FIELD(messageText, "messageText"),
        VELA_FIELD(iconText, "iconText"),
        VELA_FIELD(actionWidth, "actionWidth"),
        VELA_FIELD(actionHeight, "actionHeight"),
        VELA_FIELD(actionGap, "actionGap"),
    };
};

struct TooltipRows {
    using Record = TooltipStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(iconShape, "iconShape"),
        VELA_FIELD(railShape, "railShape"),
        VELA_SHAPED(surface, shape, "surface"),
        VELA_FIELD(shadow, "shadow"),
        VELA_FIELD(shadowOffsetX, "shadowOffsetX"),
        VELA_FIELD(shadowOffsetY, "shadowOffsetY"),
        VELA_FIELD(showShadow, "showShadow"),
        VELA_FIELD(textStyle, "textStyle"),
        VELA_FIELD(iconSize, "iconSize"),
        VELA_FIELD(scrollAcceleration, "scrollAcceleration"),
        VELA_SHAPED(icon, iconShape, "icon"),
        VELA_FIELD(paddingX, "paddingX"),
        VELA_FIELD(paddingY, "paddingY"),
        VELA_FIELD(iconText, "iconText"),
        VELA_SHAPED(accentRail, railShape, "accentRail"),
        VELA_FIELD(maxWidth, "maxWidth"),
        VELA_FIELD(gap, "gap"),
        VELA_FIELD(showAccentRail, "showAccentRail"),
        VELA_FIELD(showIcon, "showIcon"),
    };
};

// The shape of tabs is that of their items; an item button may name its own.
struct TabsRows {
    using Record = TabsStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_FIELD(itemButton.shape, "shape fallbackShape"),
        VELA_FIELD(itemButton.hitShape, "shape fallbackShape"),
        VELA_SHAPED(itemButton.surface, shape, ""),
        VELA_FIELD(itemButton, "itemButton"),
        VELA_FIELD(verticalItemHeight, "verticalItemHeight"),
    };
};

} // namespace

VELA_FIELD_TABLE(ScrollAccelerationRows, "scroll acceleration");
VELA_FIELD_TABLE(ButtonRows, "button");
VELA_FIELD_TABLE(BitmapButtonRows, "bitmap button");
VELA_FIELD_TABLE(PanelRows, "panel");
VELA_FIELD_TABLE(CardRows, "card");
VELA_FIELD_TABLE(ChromeTitleBarRows, "chrome title bar");
VELA_FIELD_TABLE(StatusChipRows, "status chip");
VELA_FIELD_TABLE(ProgressBarRows, "progress bar");
VELA_FIELD_TABLE(ScrollBarRows, "scroll bar");
VELA_FIELD_TABLE(CheckBoxRows, "check box");
VELA_FIELD_TABLE(RichTextRows, "rich text");
VELA_FIELD_TABLE(SelectableTextRows, "selectable text");
VELA_FIELD_TABLE(PopupRows, "popup");
VELA_FIELD_TABLE(TooltipRows, "tooltip");
VELA_FIELD_TABLE(TabsRows, "tabs");

} // namespace vela
