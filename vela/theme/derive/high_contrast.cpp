#include "vela/theme/derive/high_contrast.h"

#include "vela/theme/color/contrast.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace vela {
namespace {

constexpr std::int32_t kStrongLine = 2;

// The button variants that stand out by their fill. All others, and those that a skin adds, are plain.
constexpr std::wstring_view kSolidButtons[] = {L"primary", L"primary-action", L"success-action",
                                               L"warning-action", L"danger-action"};
constexpr std::wstring_view kQuietButton = L"quiet";

bool isSolid(std::wstring_view variant)
{
    return std::ranges::any_of(kSolidButtons,
                               [variant](std::wstring_view solid) { return sameName(solid, variant); });
}

// Gives the parts of a style sheet their looks. Where a record has one text colour for several faces, these
// differ by their lines; where a face has a text of its own, it may be filled with the highlight.
class Painter {
public:
    explicit Painter(const SystemColors& colors)
        : c_(colors), line_(visibleOr(colors.highlight, kMarkContrast)),
          link_(visibleOr(colors.hotlight, kTextContrast))
    {
    }

    void paint(FontSpec& style, std::wstring_view = {}) const { ink(style, c_.windowText); }
    void paint(ButtonStyle& style, std::wstring_view variant) const;
    void paint(BitmapButtonStyle& style, std::wstring_view variant) const;
    void paint(PanelStyle& style, std::wstring_view) const { ground(style.surface); }
    void paint(CardStyle& style, std::wstring_view) const;
    void paint(ChromeTitleBarStyle& style, std::wstring_view) const;
    void paint(StatusChipStyle& style, std::wstring_view) const;
    void paint(ProgressBarStyle& style, std::wstring_view) const;
    void paint(ScrollBarStyle& style, std::wstring_view = {}) const;
    void paint(CheckBoxStyle& style, std::wstring_view) const;
    void paint(SelectBoxStyle& style, std::wstring_view) const;
    void paint(ListBoxStyle& style, std::wstring_view) const;
    void paint(DateInputStyle& style, std::wstring_view) const;
    void paint(TabsStyle& style, std::wstring_view) const { paint(style.itemButton, kDefaultVariant); }
    void paint(MenuBarStyle& style, std::wstring_view) const;
    void paint(TableListStyle& style, std::wstring_view) const;
    void paint(RichTextStyle& style, std::wstring_view) const;
    void paint(TextInputStyle& style, std::wstring_view) const;
    void paint(SelectableTextStyle& style, std::wstring_view) const;
    void paint(PopupStyle& style, std::wstring_view) const;
    void paint(TooltipStyle& style, std::wstring_view) const;

private:
    // Never a colour that is not the user's.
    Color visibleOr(Color wanted, float ratio) const
    {
        return contrastRatio(wanted, c_.window) >= ratio ? wanted : c_.windowText;
    }
    // Nothing but a fill and a line is left of a surface. Its bitmap goes, and with it what tells of the
    // bitmap's layout.
    void face(SurfaceStyle& surface, Color fill, Color line, std::int32_t width = 1) const
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
    void bare(SurfaceStyle& surface) const
    {
        face(surface, c_.window, c_.windowText, 0);
        surface.drawFill = false;
    }
    void ground(SurfaceStyle& surface) const { face(surface, c_.window, c_.windowText); }
    void lively(SurfaceStyle& surface) const { face(surface, c_.window, line_, kStrongLine); }
    void off(SurfaceStyle& surface) const { face(surface, c_.window, c_.grayText); }
    void chosen(SurfaceStyle& surface) const { face(surface, c_.highlight, line_); }
    void mark(SurfaceStyle& surface, Color color) const { face(surface, color, color); }

    void ink(FontSpec& font, Color color) const
    {
        font.color = color;
        font.disabledColor = c_.grayText;
    }
    void state(ButtonStyle& style, VisualState which, Color fill, Color text, Color line,
               std::int32_t width = 1) const
    {
        face(style.surface[which], fill, line, width);
        ink(style.text[which], text);
    }
    void bareState(ButtonStyle& style, VisualState which, Color text) const
    {
        bare(style.surface[which]);
        ink(style.text[which], text);
    }
    void quietButton(ButtonStyle& style) const;

    const SystemColors& c_;
    Color line_; // of what is used or chosen: the highlight where it can be seen
    Color link_;
};

// Hot and pressed swap the two colours of the highlight, so that each step of a press is seen.
void Painter::paint(ButtonStyle& style, std::wstring_view variant) const
{
    if (sameName(variant, kQuietButton))
        return quietButton(style);
    if (isSolid(variant))
        state(style, VisualState::Normal, c_.highlight, c_.highlightText, line_);
    else
        state(style, VisualState::Normal, c_.buttonFace, c_.buttonText, c_.buttonText);
    state(style, VisualState::Hot, c_.highlightText, c_.highlight, line_, kStrongLine);
    state(style, VisualState::Pressed, c_.highlight, c_.highlightText, c_.windowText, kStrongLine);
    state(style, VisualState::Disabled, c_.buttonFace, c_.grayText, c_.grayText);
    state(style, VisualState::Active, c_.highlight, c_.highlightText, line_, kStrongLine);
}

void Painter::quietButton(ButtonStyle& style) const
{
    bareState(style, VisualState::Normal, c_.windowText);
    bareState(style, VisualState::Disabled, c_.grayText);
    state(style, VisualState::Hot, c_.highlight, c_.highlightText, line_);
    state(style, VisualState::Pressed, c_.highlightText, c_.highlight, line_, kStrongLine);
    state(style, VisualState::Active, c_.highlight, c_.highlightText, line_);
}

void Painter::paint(BitmapButtonStyle& style, std::wstring_view variant) const
{
    const bool solid = isSolid(variant);
    ink(style.text, solid ? c_.highlightText : c_.windowText);
    style.tint = style.text.color;
    if (solid)
        chosen(style.image);
    else if (style.image.drawFill)
        ground(style.image);
    else
        bare(style.image);
}

void Painter::paint(CardStyle& style, std::wstring_view) const
{
    ground(style.surface);
    bare(style.header);
    ink(style.titleText, c_.windowText);
    ink(style.subtitleText, c_.windowText);
}

void Painter::paint(ChromeTitleBarStyle& style, std::wstring_view) const
{
    face(style.surface, c_.window, c_.window, 0);
    ink(style.titleText, c_.windowText);
    quietButton(style.titleButton);
    // As the buttons beside it.
    style.closeHotSurface = style.titleButton.surface.hot;
    style.closePressedSurface = style.titleButton.surface.pressed;
    style.closeHotColor = style.titleButton.text.hot.color;
    style.closePressedColor = style.titleButton.text.pressed.color;
}

void Painter::paint(StatusChipStyle& style, std::wstring_view) const
{
    ground(style.surface);
    ink(style.text, c_.windowText);
    mark(style.badge, line_);
}

void Painter::paint(ProgressBarStyle& style, std::wstring_view) const
{
    // High enough for a fill between two lines, which the slim bar of a skin is not.
    style.insetX = 0;
    style.insetY = 4;
    bare(style.frame);
    ground(style.track);
    chosen(style.fill);
    ink(style.labelText, c_.windowText);
}

void Painter::paint(ScrollBarStyle& style, std::wstring_view) const
{
    ground(style.track);
    style.arrow = c_.windowText;
    for (int index = 0; index < kVisualStateCount; ++index) {
        const auto which = static_cast<VisualState>(index);
        const bool rests = which == VisualState::Normal || which == VisualState::Disabled;
        const Color thumb = which == VisualState::Disabled ? c_.grayText : rests ? c_.windowText : line_;
        mark(style.thumb[which], thumb);
        for (PerState<SurfaceStyle> ScrollBarStyle::*const button :
             {&ScrollBarStyle::decrementButton, &ScrollBarStyle::incrementButton}) {
            SurfaceStyle& surface = (style.*button)[which];
            if (rests)
                bare(surface);
            else
                lively(surface);
        }
    }
}

void Painter::paint(CheckBoxStyle& style, std::wstring_view) const
{
    ink(style.text, c_.windowText);
    ground(style.boxUnchecked);
    lively(style.boxUncheckedHot);
    lively(style.boxUncheckedPressed);
    off(style.boxUncheckedDisabled);
    chosen(style.boxChecked);
    face(style.boxCheckedHot, c_.highlight, c_.windowText);
    face(style.boxCheckedPressed, c_.highlight, c_.windowText, kStrongLine);
    // The mark keeps its one colour, and so the box its fill; the line tells.
    face(style.boxCheckedDisabled, c_.highlight, c_.grayText, kStrongLine);
    style.checkColor = c_.highlightText;
}

void Painter::paint(SelectBoxStyle& style, std::wstring_view) const
{
    ink(style.text, c_.windowText);
    style.arrowColor = c_.windowText;
    ground(style.surface);
    lively(style.hotSurface);
    lively(style.pressedSurface);
    off(style.disabledSurface);
    for (SurfaceStyle SelectBoxStyle::*const arrow :
         {&SelectBoxStyle::arrowSurface, &SelectBoxStyle::arrowHotSurface,
          &SelectBoxStyle::arrowPressedSurface, &SelectBoxStyle::arrowDisabledSurface})
        bare(style.*arrow);
    ground(style.dropdownSurface);
    ground(style.optionHotSurface);
    lively(style.optionSelectedSurface);
    paint(style.scrollBar);
}

void Painter::paint(ListBoxStyle& style, std::wstring_view) const
{
    ink(style.text, c_.windowText);
    ink(style.selectedText, c_.highlightText);
    ink(style.disabledText, c_.grayText);
    style.separator = c_.windowText;
    ground(style.surface);
    bare(style.row);
    lively(style.rowHot);
    lively(style.rowPressed);
    chosen(style.selectedRow);
    face(style.selectedRowHot, c_.highlight, c_.windowText);
    mark(style.selectedRail, c_.highlightText);
    paint(style.scrollBar);
}

void Painter::paint(DateInputStyle& style, std::wstring_view) const
{
    for (FontSpec DateInputStyle::*const font :
         {&DateInputStyle::text, &DateInputStyle::headerText, &DateInputStyle::weekdayText,
          &DateInputStyle::dayText, &DateInputStyle::weekendText, &DateInputStyle::saturdayText,
          &DateInputStyle::sundayText})
        ink(style.*font, c_.windowText);
    ink(style.mutedDayText, c_.grayText);
    style.arrowColor = c_.windowText;
    ground(style.surface);
    lively(style.hotSurface);
    lively(style.pressedSurface);
    off(style.disabledSurface);
    for (SurfaceStyle DateInputStyle::*const part :
         {&DateInputStyle::arrowSurface, &DateInputStyle::arrowHotSurface,
          &DateInputStyle::arrowPressedSurface, &DateInputStyle::headerSurface})
        bare(style.*part);
    ground(style.popupSurface);
    face(style.dayHotSurface, c_.window, line_);
    lively(style.dayPressedSurface);
    lively(style.daySelectedSurface);
    ground(style.todaySurface);
}

void Painter::paint(MenuBarStyle& style, std::wstring_view) const
{
    ink(style.itemText, c_.windowText);
    ink(style.shortcutText, c_.windowText);
    style.arrow = c_.windowText;
    style.separator = c_.windowText;
    style.check = c_.windowText;
    face(style.surface, c_.window, c_.window, 0);
    ground(style.popupSurface);
    bare(style.itemSurface);
    for (SurfaceStyle MenuBarStyle::*const used :
         {&MenuBarStyle::itemHotSurface, &MenuBarStyle::itemPressedSurface, &MenuBarStyle::itemActiveSurface,
          &MenuBarStyle::popupItemHotSurface, &MenuBarStyle::popupItemPressedSurface})
        lively(style.*used);
}

void Painter::paint(TableListStyle& style, std::wstring_view) const
{
    for (FontSpec TableListStyle::*const font :
         {&TableListStyle::headerText, &TableListStyle::rowText, &TableListStyle::highSeverityText})
        ink(style.*font, c_.windowText);
    ink(style.selectedText, c_.highlightText);
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
    ground(style.header);
    ground(style.surface);
    bare(style.row);
    chosen(style.selectedRow);
    mark(style.selectedRail, c_.highlightText);
}

void Painter::paint(RichTextStyle& style, std::wstring_view) const
{
    ink(style.text, c_.windowText);
    ink(style.linkText, link_);
    bare(style.surface);
    mark(style.icon, line_);
}

void Painter::paint(TextInputStyle& style, std::wstring_view) const
{
    ink(style.text, c_.windowText);
    ink(style.placeholderText, c_.grayText);
    ink(style.attachmentText, c_.windowText);
    style.caretColor = c_.windowText;
    style.attachmentIconColor = c_.windowText;
    ground(style.surface);
    lively(style.hotSurface);
    lively(style.pressedSurface);
    lively(style.focusedSurface);
    off(style.disabledSurface);
    face(style.selection, c_.highlight, c_.highlight, 0);
    ground(style.attachmentSurface);
    bare(style.attachmentImageSurface);
    bare(style.attachmentRemoveSurface);
}

void Painter::paint(SelectableTextStyle& style, std::wstring_view) const
{
    ink(style.text, c_.windowText);
    ink(style.selectedText, c_.highlightText);
    bare(style.surface);
    face(style.selection, c_.highlight, c_.highlight, 0);
}

void Painter::paint(PopupStyle& style, std::wstring_view) const
{
    style.showShadow = false;
    ground(style.surface);
    bare(style.header);
    face(style.footer, c_.window, c_.windowText, 0);
    chosen(style.icon);
    ink(style.iconText, c_.highlightText);
    ink(style.titleText, c_.windowText);
    ink(style.messageText, c_.windowText);
    quietButton(style.closeButton);
    paint(style.primaryAction, kSolidButtons[0]);
    paint(style.secondaryAction, kDefaultVariant);
}

void Painter::paint(TooltipStyle& style, std::wstring_view) const
{
    style.showShadow = false;
    style.shadow = c_.windowText;
    ground(style.surface);
    ink(style.textStyle, c_.windowText);
    chosen(style.icon);
    ink(style.iconText, c_.highlightText);
    mark(style.accentRail, line_);
}

} // namespace

void applyHighContrast(StyleSheet& sheet, const SystemColors& colors)
{
    const Painter painter(colors);
    sheet.forEachTable([&painter](ControlKind, auto& table) {
        for (auto& variant : table)
            painter.paint(variant.record, variant.name);
    });
}

} // namespace vela
