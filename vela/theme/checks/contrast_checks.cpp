#include "vela/theme/checks/contrast_checks.h"

#include "vela/theme/checks/contrast_rules.h"

#include <algorithm>
#include <string_view>

namespace vela {
namespace {

// Everything that dialogs and pages put controls on.
ToneRange groundsOf(const StyleSheet& sheet, FaceTones::Finder faces)
{
    const SurfaceStyle& panel = sheet.find<PanelStyle>(kDefaultVariant).surface;
    ToneRange grounds = faces(panel, panel.fill);
    const ToneRange lowest = grounds;
    for (const auto& variant : sheet.table<PanelStyle>())
        grounds.include(faces(variant.record.surface, lowest));
    for (const auto& variant : sheet.table<CardStyle>())
        grounds.include(faces(variant.record.surface, lowest));
    for (const auto& variant : sheet.table<PopupStyle>())
        grounds.include(faces(variant.record.surface, lowest));
    return grounds;
}

class Judge {
public:
    Judge(const StyleSheet& sheet, const FaceTones& tones)
        : sheet_(sheet), faces_(tones.ofFace), grounds_(groundsOf(sheet, tones.ofGround))
    {
    }

    std::vector<ContrastCheck> judged();

private:
    void add(std::string part, Need need, float reached)
    {
        checks_.push_back({kind_, variant_, std::move(part), ratioFor(need), reached});
    }

    // Calls judge for every variant of the record's kind.
    template <class Record, class JudgeVariant>
    void forEachVariant(ControlKind kind, const JudgeVariant& judge)
    {
        kind_ = kind;
        for (const auto& variant : sheet_.table<Record>()) {
            variant_ = variant.name;
            judge(variant.record);
        }
    }

    template <class Record>
    void judgeRules(const Record& record, const ToneRange& under)
    {
        for (const Rule<Record>& rule : contrastRules<Record>()) {
            const ToneRange bed = rule.bed ? faces_(record.*rule.bed, under) : under;
            const bool edge = rule.need == Need::Edge;
            if (!rule.faces[0])
                add(std::string(rule.part), rule.need, contrastRatio(rule.ink.in(record, rule.need), bed));
            for (const auto face : rule.faces) {
                if (face)
                    add(std::string(rule.part), rule.need,
                        edge ? standingOut(record.*face, bed)
                             : contrastRatio(rule.ink.in(record, rule.need), faces_(record.*face, bed)));
            }
        }
    }

    template <class Record>
    void judgeKind(ControlKind kind)
    {
        forEachVariant<Record>(kind, [&](const Record& record) { judgeRules(record, grounds_); });
    }

    void judgeText(const TextStyle& text);
    void judgeButton(const ButtonStyle& style, const std::string& prefix, const ToneRange& bed);
    void judgeScrollBar(const ScrollBarStyle& style, const std::string& prefix, const ToneRange& bed);
    void judgeFocus(const SurfaceStyle& surface, const std::string& prefix, const ToneRange& bed)
    {
        add(prefix + "focus ring", Need::Mark, contrastRatio(surface.glow, bed));
    }

    float standingOut(const SurfaceStyle& surface, const ToneRange& bed) const;

    const StyleSheet& sheet_;
    FaceTones::Finder faces_;
    ToneRange grounds_;
    ControlKind kind_ = ControlKind::Text;
    std::wstring variant_;
    std::vector<ContrastCheck> checks_;
};

constexpr std::string_view kStateNames[kVisualStateCount] = {"normal ", "hot ", "pressed ", "disabled ",
                                                             "active "};

// How far a surface stands out from its bed, by its border, its fill or its outline.
float Judge::standingOut(const SurfaceStyle& surface, const ToneRange& bed) const
{
    const ToneRange fill = faces_(surface, bed);
    float best = std::min(contrastRatio(fill.darkest, bed), contrastRatio(fill.lightest, bed));
    if (surface.drawBorder)
        best = std::max(best, contrastRatio(surface.border, bed));
    if (surface.showOutline)
        best = std::max(best, contrastRatio(surface.outline, bed));
    return best;
}

void Judge::judgeText(const TextStyle& text)
{
    add("text", Need::Text, contrastRatio(text.color, grounds_));
    add("disabled text", Need::DisabledText, contrastRatio(text.disabledColor, grounds_));
}

void Judge::judgeButton(const ButtonStyle& style, const std::string& prefix, const ToneRange& bed)
{
    for (int index = 0; index < kVisualStateCount; ++index) {
        const auto state = static_cast<VisualState>(index);
        const std::string part = prefix + std::string(kStateNames[index]);
        const SurfaceStyle& surface = style.surface[state];
        const FontSpec& text = style.text[state];
        const ToneRange face = faces_(surface, bed);
        if (state == VisualState::Disabled) {
            add(part + "caption", Need::DisabledText, contrastRatio(text.disabledColor, face));
            continue;
        }
        add(part + "caption", Need::Text, contrastRatio(text.color, face));
        judgeFocus(surface, part, bed);
        // Without a border or a fill of its own at rest, a button is told by its caption.
        if (style.surface.normal.drawBorder || style.surface.normal.showOutline)
            add(part + "edge", Need::Edge, standingOut(surface, bed));
    }
}

void Judge::judgeScrollBar(const ScrollBarStyle& style, const std::string& prefix, const ToneRange& bed)
{
    const ToneRange track = faces_(style.track, bed);
    for (const VisualState state :
         {VisualState::Normal, VisualState::Hot, VisualState::Pressed, VisualState::Active}) {
        const std::string part = prefix + std::string(kStateNames[static_cast<int>(state)]);
        add(part + "thumb", Need::Edge, standingOut(style.thumb[state], track));
        add(part + "arrow", Need::Mark,
            contrastRatio(style.arrow, faces_(style.decrementButton[state], bed)));
    }
}

std::vector<ContrastCheck> Judge::judged()
{
    forEachVariant<TextStyle>(ControlKind::Text, [&](const TextStyle& text) { judgeText(text); });
    forEachVariant<ButtonStyle>(ControlKind::Button,
                                [&](const ButtonStyle& style) { judgeButton(style, "", grounds_); });
    judgeKind<BitmapButtonStyle>(ControlKind::BitmapButton);
    judgeKind<CardStyle>(ControlKind::Card);
    forEachVariant<ChromeTitleBarStyle>(ControlKind::ChromeTitleBar, [&](const ChromeTitleBarStyle& style) {
        judgeRules<ChromeTitleBarStyle>(style, grounds_);
        judgeButton(style.titleButton, "caption button ", faces_(style.surface, grounds_));
    });
    judgeKind<StatusChipStyle>(ControlKind::StatusChip);
    forEachVariant<ProgressBarStyle>(ControlKind::ProgressBar, [&](const ProgressBarStyle& style) {
        judgeRules<ProgressBarStyle>(style, grounds_);
        // Either of the two tells where the bar is.
        add("frame or track", Need::Edge,
            std::max(standingOut(style.frame, grounds_), standingOut(style.track, grounds_)));
    });
    forEachVariant<ScrollBarStyle>(ControlKind::ScrollBar,
                                   [&](const ScrollBarStyle& style) { judgeScrollBar(style, "", grounds_); });
    forEachVariant<CheckBoxStyle>(ControlKind::CheckBox, [&](const CheckBoxStyle& style) {
        judgeRules<CheckBoxStyle>(style, grounds_);
        judgeFocus(style.boxUnchecked, "", grounds_);
        judgeFocus(style.boxChecked, "checked ", grounds_);
    });
    forEachVariant<SelectBoxStyle>(ControlKind::SelectBox, [&](const SelectBoxStyle& style) {
        judgeRules<SelectBoxStyle>(style, grounds_);
        judgeFocus(style.surface, "", grounds_);
        judgeScrollBar(style.scrollBar, "scroll bar ", faces_(style.dropdownSurface, grounds_));
    });
    forEachVariant<ListBoxStyle>(ControlKind::ListBox, [&](const ListBoxStyle& style) {
        judgeRules<ListBoxStyle>(style, grounds_);
        judgeScrollBar(style.scrollBar, "scroll bar ", faces_(style.surface, grounds_));
    });
    judgeKind<DateInputStyle>(ControlKind::DateInput);
    forEachVariant<TabsStyle>(ControlKind::Tabs,
                              [&](const TabsStyle& style) { judgeButton(style.itemButton, "", grounds_); });
    judgeKind<MenuBarStyle>(ControlKind::MenuBar);
    forEachVariant<TableListStyle>(ControlKind::TableList, [&](const TableListStyle& style) {
        judgeRules<TableListStyle>(style, grounds_);
        add("text of high severity", Need::Text,
            contrastRatio(style.highSeverityText.color, style.highSeverityFill));
        for (const Color fill : {style.mediumSeverityFill, style.lowSeverityFill})
            add("text of a severity", Need::Text, contrastRatio(style.rowText.color, fill));
    });
    judgeKind<RichTextStyle>(ControlKind::RichText);
    forEachVariant<TextInputStyle>(ControlKind::TextInput, [&](const TextInputStyle& style) {
        judgeRules<TextInputStyle>(style, grounds_);
        judgeFocus(style.disabledSurface, "locked ", grounds_);
    });
    judgeKind<SelectableTextStyle>(ControlKind::SelectableText);
    forEachVariant<PopupStyle>(ControlKind::Popup, [&](const PopupStyle& style) {
        judgeRules<PopupStyle>(style, grounds_);
        const ToneRange bed = faces_(style.surface, grounds_);
        const ToneRange header = faces_(style.header, bed);
        add("badge", Need::Edge, standingOut(style.icon, header));
        judgeButton(style.closeButton, "close button ", header);
        const ToneRange footer = surfaceTones(style.footer, bed);
        judgeButton(style.primaryAction, "primary action ", footer);
        judgeButton(style.secondaryAction, "secondary action ", footer);
    });
    judgeKind<TooltipStyle>(ControlKind::Tooltip);
    return std::move(checks_);
}

} // namespace

std::vector<ContrastCheck> contrastChecks(const StyleSheet& sheet, const FaceTones& faces)
{
    return Judge(sheet, faces).judged();
}

} // namespace vela
