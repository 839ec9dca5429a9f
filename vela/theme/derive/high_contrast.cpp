#include "vela/theme/derive/high_contrast.h"

#include "vela/theme/color/contrast.h"
#include "vela/theme/derive/buttons.h"

#include <string_view>

namespace vela {
namespace {

using derive::Emphasis;

constexpr std::int32_t kStrongLine = 2;

// Gives the parts of a style sheet the system's colours. Where a record has one text colour for several
// faces, these differ by their lines; where a face has a text of its own, it may be filled with the
// highlight.
class Recolorer {
public:
    explicit Recolorer(const SystemColors& colors)
        : c_(colors), line_(visibleOr(colors.highlight, kMarkContrast)),
          link_(visibleOr(colors.hotlight, kTextContrast))
    {
    }

    void recolor(FontSpec& style, std::wstring_view = {}) const { setText(style, c_.windowText); }

    void recolor(ButtonStyle& style, std::wstring_view variant) const
    {
        recolor(style, derive::emphasisOf(variant));
    }

    // Hot and pressed swap the two colours of the highlight, so that each step of a press is seen.
    void recolor(ButtonStyle& style, Emphasis emphasis) const
    {
        if (emphasis == Emphasis::Quiet)
            return setQuiet(style);
        if (emphasis == Emphasis::Solid)
            setState(style, VisualState::Normal, c_.highlight, c_.highlightText, line_);
        else
            setState(style, VisualState::Normal, c_.buttonFace, c_.buttonText, c_.buttonText);
        setState(style, VisualState::Hot, c_.highlightText, c_.highlight, line_, kStrongLine);
        setState(style, VisualState::Pressed, c_.highlight, c_.highlightText, c_.windowText, kStrongLine);
        setState(style, VisualState::Disabled, c_.buttonFace, c_.grayText, c_.grayText);
        setState(style, VisualState::Active, c_.highlight, c_.highlightText, line_, kStrongLine);
    }

    void recolor(BitmapButtonStyle& style, std::wstring_view variant) const
    {
        const bool solid = derive::emphasisOf(variant) == Emphasis::Solid;
        setText(style.text, solid ? c_.highlightText : c_.windowText);
        style.tint = style.text.color;
        if (solid)
            setSelected(style.image);
        else if (style.image.drawFill)
            setFramed(style.image);
        else
            setBare(style.image);
    }

    void recolor(PanelStyle& style, std::wstring_view) const { setFramed(style.surface); }

    void recolor(CardStyle& style, std::wstring_view) const
    {
        setFramed(style.surface);
        setBare(style.header);
        setText(style.titleText, c_.windowText);
        setText(style.subtitleText, c_.windowText);
    }

    void recolor(ChromeTitleBarStyle& style, std::wstring_view) const
    {
        setSurface(style.surface, c_.window, c_.window, 0);
        setText(style.titleText, c_.windowText);
        setQuiet(style.titleButton);
        // As the buttons beside it.
        style.closeHotSurface = style.titleButton.surface.hot;
        style.closePressedSurface = style.titleButton.surface.pressed;
        style.closeHotColor = style.titleButton.text.hot.color;
        style.closePressedColor = style.titleButton.text.pressed.color;
    }

    void recolor(StatusChipStyle& style, std::wstring_view) const
    {
        setFramed(style.surface);
        setText(style.text, c_.windowText);
        setMark(style.badge, line_);
    }

    void recolor(ProgressBarStyle& style, std::wstring_view) const
    {
        // High enough for a fill between two lines, which the slim bar of a skin is not.
        style.insetX = 0;
        style.insetY = 4;
        setBare(style.frame);
        setFramed(style.track);
        setSelected(style.fill);
        setText(style.labelText, c_.windowText);
    }

    void recolor(ScrollBarStyle& style, std::wstring_view = {}) const
    {
        setFramed(style.track);
        style.arrow = c_.windowText;
        for (int index = 0; index < kVisualStateCount; ++index) {
            const auto which = static_cast<VisualState>(index);
            const bool rests = which == VisualState::Normal || which == VisualState::Disabled;
            const Color thumb = which == VisualState::Disabled ? c_.grayText : rests ? c_.windowText : line_;
            setMark(style.thumb[which], thumb);
            for (PerState<SurfaceStyle> ScrollBarStyle::*const button :
                 {&ScrollBarStyle::decrementButton, &ScrollBarStyle::incrementButton}) {
                SurfaceStyle& surface = (style.*button)[which];
                if (rests)
                    setBare(surface);
                else
                    setInUse(surface);
            }
        }
    }

    void recolor(CheckBoxStyle& style, std::wstring_view) const
    {
        setText(style.text, c_.windowText);
        setFramed(style.boxUnchecked);
        setInUse(style.boxUncheckedHot);
        setInUse(style.boxUncheckedPressed);
        setDisabled(style.boxUncheckedDisabled);
        setSelected(style.boxChecked);
        setSurface(style.boxCheckedHot, c_.highlight, c_.windowText);
        setSurface(style.boxCheckedPressed, c_.highlight, c_.windowText, kStrongLine);
        // The setMark keeps its one colour, and so the box its fill; the line tells.
        setSurface(style.boxCheckedDisabled, c_.highlight, c_.grayText, kStrongLine);
        style.checkColor = c_.highlightText;
    }

    void recolor(SelectBoxStyle& style, std::wstring_view) const
    {
        setText(style.text, c_.windowText);
        style.arrowColor = c_.windowText;
        setFramed(style.surface);
        setInUse(style.hotSurface);
        setInUse(style.pressedSurface);
        setDisabled(style.disabledSurface);
        for (SurfaceStyle SelectBoxStyle::*const arrow :
             {&SelectBoxStyle::arrowSurface, &SelectBoxStyle::arrowHotSurface,
              &SelectBoxStyle::arrowPressedSurface, &SelectBoxStyle::arrowDisabledSurface})
            setBare(style.*arrow);
        setFramed(style.dropdownSurface);
        setFramed(style.optionHotSurface);
        setInUse(style.optionSelectedSurface);
        recolor(style.scrollBar);
    }

    void recolor(ListBoxStyle& style, std::wstring_view) const
    {
        setText(style.text, c_.windowText);
        setText(style.selectedText, c_.highlightText);
        setText(style.disabledText, c_.grayText);
        style.separator = c_.windowText;
        setFramed(style.surface);
        setBare(style.row);
        setInUse(style.rowHot);
        setInUse(style.rowPressed);
        setSelected(style.selectedRow);
        setSurface(style.selectedRowHot, c_.highlight, c_.windowText);
        setMark(style.selectedRail, c_.highlightText);
        recolor(style.scrollBar);
    }

    void recolor(DateInputStyle& style, std::wstring_view) const
    {
        for (FontSpec DateInputStyle::*const font :
             {&DateInputStyle::text, &DateInputStyle::headerText, &DateInputStyle::weekdayText,
              &DateInputStyle::dayText, &DateInputStyle::weekendText, &DateInputStyle::saturdayText,
              &DateInputStyle::sundayText})
            setText(style.*font, c_.windowText);
        setText(style.mutedDayText, c_.grayText);
        style.arrowColor = c_.windowText;
        setFramed(style.surface);
        setInUse(style.hotSurface);
        setInUse(style.pressedSurface);
        setDisabled(style.disabledSurface);
        for (SurfaceStyle DateInputStyle::*const part :
             {&DateInputStyle::arrowSurface, &DateInputStyle::arrowHotSurface,
              &DateInputStyle::arrowPressedSurface, &DateInputStyle::headerSurface})
            setBare(style.*part);
        setFramed(style.popupSurface);
        setSurface(style.dayHotSurface, c_.window, line_);
        setInUse(style.dayPressedSurface);
        setInUse(style.daySelectedSurface);
        setFramed(style.todaySurface);
    }

    void recolor(TabsStyle& style, std::wstring_view) const { recolor(style.itemButton, Emphasis::Standard); }

    void recolor(MenuBarStyle& style, std::wstring_view) const
    {
        setText(style.itemText, c_.windowText);
        setText(style.shortcutText, c_.windowText);
        style.arrow = c_.windowText;
        style.separator = c_.windowText;
        style.check = c_.windowText;
        setSurface(style.surface, c_.window, c_.window, 0);
        setFramed(style.popupSurface);
        setBare(style.itemSurface);
        for (SurfaceStyle MenuBarStyle::*const used :
             {&MenuBarStyle::itemHotSurface, &MenuBarStyle::itemPressedSurface,
              &MenuBarStyle::itemActiveSurface, &MenuBarStyle::popupItemHotSurface,
              &MenuBarStyle::popupItemPressedSurface})
            setInUse(style.*used);
    }

    void recolor(TableListStyle& style, std::wstring_view) const
    {
        for (FontSpec TableListStyle::*const font :
             {&TableListStyle::headerText, &TableListStyle::rowText, &TableListStyle::highSeverityText})
            setText(style.*font, c_.windowText);
        setText(style.selectedText, c_.highlightText);
        // A severity is told by its words.
        for (Color TableListStyle::*const fill :
             {&TableListStyle::highSeverityFill, &TableListStyle::mediumSeverityFill,
              &TableListStyle::lowSeverityFill})
            style.*fill = c_.window;
        for (Color TableListStyle::*const drawn :
             {&TableListStyle::separator, &TableListStyle::resizeGrip, &TableListStyle::sortIndicator})
            style.*drawn = c_.windowText;
        style.resizeGripHot = line_;
        style.sortIndicatorHot = line_;
        setFramed(style.header);
        setFramed(style.surface);
        setBare(style.row);
        setSelected(style.selectedRow);
        setMark(style.selectedRail, c_.highlightText);
    }

    void recolor(RichTextStyle& style, std::wstring_view) const
    {
        setText(style.text, c_.windowText);
        setText(style.linkText, link_);
        setBare(style.surface);
        setMark(style.icon, line_);
    }

    void recolor(TextInputStyle& style, std::wstring_view) const
    {
        setText(style.text, c_.windowText);
        setText(style.placeholderText, c_.grayText);
        setText(style.attachmentText, c_.windowText);
        style.caretColor = c_.windowText;
        style.attachmentIconColor = c_.windowText;
        setFramed(style.surface);
        setInUse(style.hotSurface);
        setInUse(style.pressedSurface);
        setInUse(style.focusedSurface);
        setDisabled(style.disabledSurface);
        setSurface(style.selection, c_.highlight, c_.highlight, 0);
        setFramed(style.attachmentSurface);
        setBare(style.attachmentImageSurface);
        setBare(style.attachmentRemoveSurface);
    }

    void recolor(SelectableTextStyle& style, std::wstring_view) const
    {
        setText(style.text, c_.windowText);
        setText(style.selectedText, c_.highlightText);
        setBare(style.surface);
        setSurface(style.selection, c_.highlight, c_.highlight, 0);
    }

    void recolor(PopupStyle& style, std::wstring_view) const
    {
        style.showShadow = false;
        setFramed(style.surface);
        setBare(style.header);
        setSurface(style.footer, c_.window, c_.windowText, 0);
        setSelected(style.icon);
        setText(style.iconText, c_.highlightText);
        setText(style.titleText, c_.windowText);
        setText(style.messageText, c_.windowText);
        setQuiet(style.closeButton);
        recolor(style.primaryAction, Emphasis::Solid);
        recolor(style.secondaryAction, Emphasis::Standard);
    }

    void recolor(TooltipStyle& style, std::wstring_view) const
    {
        style.showShadow = false;
        style.shadow = c_.windowText;
        setFramed(style.surface);
        setText(style.textStyle, c_.windowText);
        setSelected(style.icon);
        setText(style.iconText, c_.highlightText);
        setMark(style.accentRail, line_);
    }

private:
    // Never a colour that is not the user's.
    Color visibleOr(Color wanted, float ratio) const
    {
        return contrastRatio(wanted, c_.window) >= ratio ? wanted : c_.windowText;
    }
    // Nothing but a fill and a line is left of a surface. Its bitmap goes, and with it what tells of the
    // bitmap's layout.
    void setSurface(SurfaceStyle& surface, Color fill, Color line, std::int32_t width = 1) const
    {
        SurfaceStyle level;
        dimLight(level, 0);
        level.shape = surface.shape;
        level.fill = fill;
        level.border = line;
        level.outline = line;
        level.outlineWidth = width;
        level.drawBorder = false;
        level.showOutline = width > 0;
        level.glow = line_; // of the focus ring
        surface = level;
    }
    void setBare(SurfaceStyle& surface) const
    {
        setSurface(surface, c_.window, c_.windowText, 0);
        surface.drawFill = false;
    }
    void setFramed(SurfaceStyle& surface) const { setSurface(surface, c_.window, c_.windowText); }
    void setInUse(SurfaceStyle& surface) const { setSurface(surface, c_.window, line_, kStrongLine); }
    void setDisabled(SurfaceStyle& surface) const { setSurface(surface, c_.window, c_.grayText); }
    void setSelected(SurfaceStyle& surface) const { setSurface(surface, c_.highlight, line_); }
    void setMark(SurfaceStyle& surface, Color color) const { setSurface(surface, color, color); }

    void setText(FontSpec& font, Color color) const
    {
        font.color = color;
        font.disabledColor = c_.grayText;
    }
    void setState(ButtonStyle& style, VisualState which, Color fill, Color text, Color line,
                  std::int32_t width = 1) const
    {
        setSurface(style.surface[which], fill, line, width);
        setText(style.text[which], text);
    }
    void setBareState(ButtonStyle& style, VisualState which, Color text) const
    {
        setBare(style.surface[which]);
        setText(style.text[which], text);
    }

    void setQuiet(ButtonStyle& style) const
    {
        setBareState(style, VisualState::Normal, c_.windowText);
        setBareState(style, VisualState::Disabled, c_.grayText);
        setState(style, VisualState::Hot, c_.highlight, c_.highlightText, line_);
        setState(style, VisualState::Pressed, c_.highlightText, c_.highlight, line_, kStrongLine);
        setState(style, VisualState::Active, c_.highlight, c_.highlightText, line_);
    }

    const SystemColors& c_;
    Color line_; // of what is used or selected: the highlight where it can be seen
    Color link_;
};

} // namespace

void applyHighContrast(StyleSheet& sheet, const SystemColors& colors)
{
    const Recolorer recolorer(colors);
    sheet.forEachTable([&recolorer](ControlKind, auto& table) {
        for (auto& variant : table)
            recolorer.recolor(variant.record, variant.name);
    });
}

} // namespace vela
