#include "vela/theme/checks/contrast_checks.h"

#include "vela/theme/checks/contrast_rules.h"

#include <algorithm>
#include <string_view>

namespace vela {
namespace {

using checks::ContrastRule;
using checks::Requirement;

// Everything that dialogs and pages put controls on.
ToneRange containerTones(const StyleSheet& sheet, ToneFinders::Finder tonesOf)
{
    const SurfaceStyle& panel = sheet.find<PanelStyle>(kDefaultVariant).surface;
    ToneRange tones = tonesOf(panel, panel.fill);
    const ToneRange lowest = tones;
    for (const auto& variant : sheet.table<PanelStyle>())
        tones.include(tonesOf(variant.record.surface, lowest));
    for (const auto& variant : sheet.table<CardStyle>())
        tones.include(tonesOf(variant.record.surface, lowest));
    for (const auto& variant : sheet.table<PopupStyle>())
        tones.include(tonesOf(variant.record.surface, lowest));
    return tones;
}

constexpr std::string_view kStateNames[kVisualStateCount] = {"normal ", "hot ", "pressed ", "disabled ",
                                                             "active "};

class ContrastChecker {
public:
    ContrastChecker(const StyleSheet& sheet, const ToneFinders& finders)
        : sheet_(sheet), tonesOf_(finders.ofControl), containers_(containerTones(sheet, finders.ofContainer))
    {
    }

    std::vector<ContrastCheck> run()
    {
        sheet_.forEachTable([this](ControlKind kind, const auto& table) {
            kind_ = kind;
            for (const auto& variant : table) {
                variant_ = variant.name;
                check(variant.record);
            }
        });
        return std::move(checks_);
    }

private:
    // By the rules alone, unless a kind has a check of its own.
    template <class Record>
    void check(const Record& record)
    {
        checkRules(record);
    }

    void check(const TextStyle& text)
    {
        add("text", Requirement::Text, contrastRatio(text.color, containers_));
        add("disabled text", Requirement::DisabledText, contrastRatio(text.disabledColor, containers_));
    }

    void check(const ButtonStyle& style) { checkButton(style, "", containers_); }

    void check(const ChromeTitleBarStyle& style)
    {
        checkRules(style);
        checkButton(style.titleButton, "caption button ", tonesOf_(style.surface, containers_));
    }

    void check(const ProgressBarStyle& style)
    {
        checkRules(style);
        // Either of the two tells where the bar is.
        add("frame or track", Requirement::Edge,
            std::max(edgeContrast(style.frame, containers_), edgeContrast(style.track, containers_)));
    }

    void check(const ScrollBarStyle& style) { checkScrollBar(style, "", containers_); }

    void check(const CheckBoxStyle& style)
    {
        checkRules(style);
        checkFocus(style.boxUnchecked, "", containers_);
        checkFocus(style.boxChecked, "checked ", containers_);
    }

    void check(const SelectBoxStyle& style)
    {
        checkRules(style);
        checkFocus(style.surface, "", containers_);
        checkScrollBar(style.scrollBar, "scroll bar ", tonesOf_(style.dropdownSurface, containers_));
    }

    void check(const ListBoxStyle& style)
    {
        checkRules(style);
        checkScrollBar(style.scrollBar, "scroll bar ", tonesOf_(style.surface, containers_));
    }

    void check(const TabsStyle& style) { checkButton(style.itemButton, "", containers_); }

    void check(const TableListStyle& style)
    {
        checkRules(style);
        add("text of high severity", Requirement::Text,
            contrastRatio(style.highSeverityText.color, style.highSeverityFill));
        for (const Color fill : {style.mediumSeverityFill, style.lowSeverityFill})
            add("text of a severity", Requirement::Text, contrastRatio(style.rowText.color, fill));
    }

    void check(const TextInputStyle& style)
    {
        checkRules(style);
        checkFocus(style.disabledSurface, "locked ", containers_);
    }

    void check(const PopupStyle& style)
    {
        checkRules(style);
        const ToneRange surface = tonesOf_(style.surface, containers_);
        const ToneRange header = tonesOf_(style.header, surface);
        add("badge", Requirement::Edge, edgeContrast(style.icon, header));
        checkButton(style.closeButton, "close button ", header);
        const ToneRange footer = surfaceTones(style.footer, surface);
        checkButton(style.primaryAction, "primary action ", footer);
        checkButton(style.secondaryAction, "secondary action ", footer);
    }

    void add(std::string part, Requirement requirement, float reached)
    {
        checks_.push_back({kind_, variant_, std::move(part), checks::requiredRatio(requirement), reached});
    }

    template <class Record>
    void checkRules(const Record& record)
    {
        for (const ContrastRule<Record>& rule : checks::kContrastRules<Record>)
            checkRule(rule, record);
    }

    template <class Record>
    void checkRule(const ContrastRule<Record>& rule, const Record& record)
    {
        const std::string part(rule.part);
        const ToneRange backdrop = rule.backdrop ? tonesOf_(record.*rule.backdrop, containers_) : containers_;
        const auto foregroundOn = [&](const ToneRange& tones) {
            return contrastRatio(rule.foreground.in(record, rule.requirement), tones);
        };
        if (!rule.faces[0])
            add(part, rule.requirement, foregroundOn(backdrop));
        for (const auto face : rule.faces) {
            if (face)
                add(part, rule.requirement,
                    rule.requirement == Requirement::Edge ? edgeContrast(record.*face, backdrop)
                                                          : foregroundOn(tonesOf_(record.*face, backdrop)));
        }
    }

    void checkButton(const ButtonStyle& style, const std::string& prefix, const ToneRange& backdrop)
    {
        for (int index = 0; index < kVisualStateCount; ++index) {
            const auto state = static_cast<VisualState>(index);
            const std::string part = prefix + std::string(kStateNames[index]);
            const SurfaceStyle& surface = style.surface[state];
            const FontSpec& text = style.text[state];
            const ToneRange face = tonesOf_(surface, backdrop);
            if (state == VisualState::Disabled) {
                add(part + "caption", Requirement::DisabledText, contrastRatio(text.disabledColor, face));
                continue;
            }
            add(part + "caption", Requirement::Text, contrastRatio(text.color, face));
            checkFocus(surface, part, backdrop);
            // Without a border or a fill of its own at rest, a button is told by its caption.
            if (style.surface.normal.drawBorder || style.surface.normal.showOutline)
                add(part + "edge", Requirement::Edge, edgeContrast(surface, backdrop));
        }
    }

    void checkScrollBar(const ScrollBarStyle& style, const std::string& prefix, const ToneRange& backdrop)
    {
        const ToneRange track = tonesOf_(style.track, backdrop);
        for (const VisualState state :
             {VisualState::Normal, VisualState::Hot, VisualState::Pressed, VisualState::Active}) {
            const std::string part = prefix + std::string(kStateNames[static_cast<int>(state)]);
            add(part + "thumb", Requirement::Edge, edgeContrast(style.thumb[state], track));
            add(part + "arrow", Requirement::Mark,
                contrastRatio(style.arrow, tonesOf_(style.decrementButton[state], backdrop)));
        }
    }

    void checkFocus(const SurfaceStyle& surface, const std::string& prefix, const ToneRange& backdrop)
    {
        add(prefix + "focus ring", Requirement::Mark, contrastRatio(surface.glow, backdrop));
    }

    // How far a surface stands out from its backdrop, by its border, its fill or its outline.
    float edgeContrast(const SurfaceStyle& surface, const ToneRange& backdrop) const
    {
        const ToneRange fill = tonesOf_(surface, backdrop);
        float best = std::min(contrastRatio(fill.darkest, backdrop), contrastRatio(fill.lightest, backdrop));
        if (surface.drawBorder)
            best = std::max(best, contrastRatio(surface.border, backdrop));
        if (surface.showOutline)
            best = std::max(best, contrastRatio(surface.outline, backdrop));
        return best;
    }

    const StyleSheet& sheet_;
    ToneFinders::Finder tonesOf_;
    ToneRange containers_; // that all controls lie on
    ControlKind kind_ = ControlKind::Text;
    std::wstring variant_;
    std::vector<ContrastCheck> checks_;
};

} // namespace

std::vector<ContrastCheck> contrastChecks(const StyleSheet& sheet, const ToneFinders& tones)
{
    return ContrastChecker(sheet, tones).run();
}

} // namespace vela
