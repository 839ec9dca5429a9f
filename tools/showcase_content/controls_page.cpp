// Every simple control in every state, and above them one of each kind to try.
#include "tools/showcase_content/content.h"
#include "tools/showcase_content/exhibits.h"

#include "vela/controls/widgets/check_box.h"
#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/widgets/designed_popup.h"
#include "vela/controls/widgets/label.h"
#include "vela/controls/widgets/progress_bar.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/controls/widgets/tooltip.h"
#include "vela/theme/checks/derived_variants.h"
#include "vela/theme/records/style_sheet.h"

namespace showcase {

using namespace vela;

namespace {

enum class State : std::uint8_t { Normal, Hot, Pressed, Active, Focused, Disabled };

struct StateName {
    std::wstring_view name; // as skins spell it
    State state;
};
constexpr StateName kButtonStates[] = {{L"normal", State::Normal},   {L"hot", State::Hot},
                                       {L"pressed", State::Pressed}, {L"active", State::Active},
                                       {L"focused", State::Focused}, {L"disabled", State::Disabled}};
constexpr StateName kBoxStates[] = {{L"normal", State::Normal},
                                    {L"hot", State::Hot},
                                    {L"pressed", State::Pressed},
                                    {L"focused", State::Focused},
                                    {L"disabled", State::Disabled}};

constexpr std::int32_t kLeft = 24;
constexpr std::int32_t kRight = 700;
constexpr std::int32_t kWidth = 1168;
constexpr std::int32_t kRightWidth = kLeft + kWidth - kRight;
constexpr std::int32_t kCaption = 18;

std::wstring idOf(std::wstring_view kind, std::wstring_view variant, std::wstring_view state)
{
    return std::wstring(kind).append(L".").append(variant).append(L".").append(state);
}

Label& addText(Panel& panel, const Rect& rect, std::wstring_view text, std::wstring_view variant)
{
    auto& label =
        panel.addControl(std::make_unique<Label>(idOf(L"label", variant, text), rect, std::wstring(text)));
    label.setStyleKey(std::wstring(variant));
    return label;
}

void addCaption(Panel& panel, const Rect& rect, std::wstring_view text, TextAlign align = TextAlign::Left)
{
    addText(panel, rect, text, L"muted").setAlign(align);
}

void setState(Control& control, State state)
{
    control.setHot(state == State::Hot || state == State::Pressed);
    control.setPressed(state == State::Pressed);
    control.setEnabled(state != State::Disabled);
}

// The control stands still in that state; its bounds are those within the panel.
void addStill(Panel& panel, std::unique_ptr<Control> control, State state)
{
    setState(*control, state);
    if (state == State::Focused) {
        const Control& focused = *control;
        panel.add(std::make_unique<FocusStage>(std::move(control), focused));
    } else {
        panel.add(std::move(control));
    }
}

void addLiveRow(Panel& page)
{
    constexpr std::int32_t kTop = 14;
    constexpr std::int32_t kHeight = 32;
    std::int32_t x = kLeft;
    const auto place = [&x](std::int32_t width) {
        const Rect rect{x, kTop, width, kHeight};
        x += width + 16;
        return rect;
    };
    auto& primary =
        page.addControl(std::make_unique<ThemedButton>(L"live.primary", place(120), L"Instalovat"));
    primary.setStyleKey(L"primary");
    primary.setHint(L"Tyto prvky jsou živé: zkuste myš, Tab, mezerník a Enter.");
    page.add(std::make_unique<ThemedButton>(L"live.secondary", place(120), L"Zavřít"));
    auto& danger = page.addControl(std::make_unique<ThemedButton>(L"live.danger", place(120), L"Odstranit"));
    danger.setStyleKey(L"danger");
    auto& box = page.addControl(std::make_unique<CheckBox>(L"live.check", place(170), L"Spouštět s Windows"));
    box.setChecked(true);
    box.setHint(L"Tamber se spustí po přihlášení.");
    auto& field =
        page.addControl(std::make_unique<TextInput>(L"live.input", place(300), L"C:\\Program Files\\Tamber"));
    field.setHint(L"Složka, do které se aplikace nainstaluje.");
    auto& bar = page.addControl(std::make_unique<ProgressBar>(L"live.progress", place(kLeft + kWidth - x)));
    bar.setValue(42);
}

void addButtons(Panel& panel, std::int32_t top)
{
    constexpr std::int32_t kName = 122;
    constexpr Size kButton{80, 28};
    constexpr std::int32_t kStep = kButton.width + 8;
    std::int32_t x = kLeft + kName;
    for (const StateName& state : kButtonStates) {
        addCaption(panel, {x, top, kButton.width, kCaption}, state.name, TextAlign::Center);
        x += kStep;
    }
    std::int32_t y = top + kCaption + 4;
    for (const std::wstring_view variant : derivedVariants(ControlKind::Button)) {
        addCaption(panel, {kLeft, y, kName - 8, kButton.height}, variant);
        x = kLeft + kName;
        for (const StateName& state : kButtonStates) {
            auto button = std::make_unique<ThemedButton>(
                idOf(L"button", variant, state.name), Rect{x, y, kButton.width, kButton.height}, L"Otevřít");
            button->setStyleKey(std::wstring(variant));
            button->setActive(state.state == State::Active);
            addStill(panel, std::move(button), state.state);
            x += kStep;
        }
        y += kButton.height + 8;
    }
}

void addLabels(Panel& panel, std::int32_t top)
{
    constexpr std::int32_t kRow = 26;
    for (const std::wstring_view variant : derivedVariants(ControlKind::Text)) {
        addCaption(panel, {kRight, top, 64, kCaption}, variant);
        addText(panel, {kRight + 68, top, 300, kCaption}, L"Příliš žluťoučký kůň 0123", variant);
        addText(panel, {kRight + 376, top, kRightWidth - 376, kCaption}, L"nedostupné", variant)
            .setEnabled(false);
        top += kRow;
    }
}

void addCheckBoxes(Panel& panel, std::int32_t top)
{
    constexpr std::int32_t kStep = kRightWidth / 5;
    std::int32_t x = kRight;
    for (const StateName& state : kBoxStates) {
        addCaption(panel, {x, top, kStep, kCaption}, state.name);
        for (const bool checked : {false, true}) {
            const std::wstring_view mark = checked ? L"checked" : L"unchecked";
            const std::int32_t y = top + kCaption + 8 + (checked ? 36 : 0);
            auto box = std::make_unique<CheckBox>(idOf(L"check", mark, state.name), Rect{x, y, kStep - 8, 26},
                                                  L"Volba");
            box->setChecked(checked);
            addStill(panel, std::move(box), state.state);
        }
        x += kStep;
    }
}

void addProgressBars(Panel& panel, std::int32_t top)
{
    constexpr struct {
        std::int32_t value;
        bool label;
        State state;
    } kBars[] = {{0, true, State::Normal},   {7, true, State::Normal},   {50, true, State::Normal},
                 {100, true, State::Normal}, {66, false, State::Normal}, {66, true, State::Disabled}};
    constexpr std::int32_t kBar = (kRightWidth - 24) / 2;
    for (int i = 0; i < static_cast<int>(std::size(kBars)); ++i) {
        auto bar =
            std::make_unique<ProgressBar>(L"progress." + std::to_wstring(i),
                                          Rect{kRight + i % 2 * (kBar + 24), top + i / 2 * 30, kBar, 22});
        bar->setValue(kBars[i].value);
        bar->setShowsLabel(kBars[i].label);
        addStill(panel, std::move(bar), kBars[i].state);
    }
}

// As large as its text needs, as in a tooltip's own window.
class FittedTooltip final : public TooltipView {
public:
    using TooltipView::TooltipView;
    void onStyleApplied() override
    {
        const Size size = preferredSize();
        setBounds({bounds().x, bounds().y, size.width, size.height});
    }
};

void addTooltips(Panel& panel, std::int32_t top)
{
    for (const std::wstring_view variant : derivedVariants(ControlKind::Tooltip)) {
        auto tip =
            std::make_unique<FittedTooltip>(idOf(L"tooltip", variant, L"normal"), Rect{kRight, top, 10, 10});
        tip->setStyleKey(std::wstring(variant));
        tip->setText(L"Sem se aplikace nainstaluje.");
        panel.add(std::move(tip));
        top += 44;
    }
}

constexpr struct FieldExhibit {
    std::wstring_view name;
    std::wstring_view text;
    std::wstring_view placeholder;
    State state;
    bool selects = false; // the last word
    bool locked = false;
    bool attachments = false;
} kFields[] = {
    {L"normal", L"C:\\Program Files\\Tamber", L"", State::Normal},
    {L"hot", L"C:\\Program Files\\Tamber", L"", State::Hot},
    {L"pressed", L"C:\\Program Files\\Tamber", L"", State::Pressed},
    {L"focused", L"C:\\Program Files\\Tamber", L"", State::Focused},
    {L"focused, selection", L"C:\\Program Files\\Tamber", L"", State::Focused, true},
    {L"placeholder", L"", L"Vyberte složku", State::Normal},
    {L"focused, placeholder", L"", L"Vyberte složku", State::Focused},
    {L"locked", L"C:\\Program Files\\Tamber", L"", State::Normal, false, true},
    {L"focused, locked, selection", L"C:\\Program Files\\Tamber", L"", State::Focused, true, true},
    {L"disabled", L"C:\\Program Files\\Tamber", L"", State::Disabled},
    {L"attachments", L"dotaz", L"", State::Normal, false, false, true},
    {L"focused, longer than the field",
     L"C:\\Users\\Public\\Documents\\Aplikace a data všech uživatelů\\Tamber", L"", State::Focused},
};

void addFields(Panel& panel, std::int32_t top)
{
    constexpr std::int32_t kColumns = 4;
    constexpr std::int32_t kGap = 16;
    constexpr std::int32_t kField = (kWidth - (kColumns - 1) * kGap) / kColumns;
    constexpr std::int32_t kRow = kCaption + 4 + 32 + 8;
    for (int i = 0; i < static_cast<int>(std::size(kFields)); ++i) {
        const FieldExhibit& shown = kFields[i];
        const Rect cell{kLeft + i % kColumns * (kField + kGap), top + i / kColumns * kRow, kField, kRow};
        addCaption(panel, {cell.x, cell.y, cell.width, kCaption}, shown.name);
        auto field = std::make_unique<TextInput>(idOf(L"input", L"default", shown.name),
                                                 Rect{cell.x, cell.y + kCaption + 4, kField, 32}, shown.text);
        field->setPlaceholder(std::wstring(shown.placeholder));
        field->setEditLock(shown.locked);
        if (shown.attachments)
            field->setAttachments({{L"a", L"log.txt"}, {L"b", L"plan.pdf"}});
        if (shown.state == State::Focused)
            field->keyPressed({kKeyEnd, {}});
        if (shown.selects)
            field->keyPressed({kKeyLeft, {.control = true, .shift = true, .alt = false}});
        addStill(panel, std::move(field), shown.state);
    }
}

void addTitleBars(Panel& panel, std::int32_t top)
{
    constexpr std::int32_t kBar = (kWidth - 16) / 2;
    constexpr struct {
        CaptionButton button;
        State state;
    } kMixed[] = {{CaptionButton::ResetSize, State::Disabled},
                  {CaptionButton::Minimize, State::Hot},
                  {CaptionButton::Maximize, State::Pressed},
                  {CaptionButton::Close, State::Hot}};
    for (const bool mixed : {false, true}) {
        auto bar = std::make_unique<FittedTitleBar>(mixed ? L"chrome.mixed" : L"chrome.normal",
                                                    Rect{kLeft + (mixed ? kBar + 16 : 0), top, kBar, 40},
                                                    L"Tamber", Theme());
        ThemedButton& first = bar->addHeaderAction(1, L"?");
        bar->addHeaderAction(2, L"CZ").setActive(mixed);
        if (mixed)
            setState(first, State::Hot);
        for (const auto& [button, state] : kMixed) {
            bar->showButton(button, true);
            setState(bar->button(button), mixed ? state : State::Normal);
        }
        panel.add(std::move(bar));
    }
}

void addPopups(Panel& panel, std::int32_t top)
{
    constexpr struct {
        std::wstring_view variant;
        std::wstring_view iconText;
        std::wstring_view title;
        std::wstring_view message;
        bool focused;
    } kPopups[] = {
        {L"default", L"i", L"Nainstalovano", L"Tamber se otevře po zavření.", false},
        {L"default", L"!", L"Bez restartu", L"Změny se projeví po restartu.", true},
        {L"danger", L"X", L"Chyba instalace", L"Soubor se nepodařilo zapsat.", false},
    };
    constexpr std::int32_t kCount = std::size(kPopups);
    constexpr std::int32_t kGap = 17;
    constexpr std::int32_t kPopup = (kWidth - (kCount - 1) * kGap) / kCount;
    std::int32_t x = kLeft;
    for (const auto& shown : kPopups) {
        auto popup = std::make_unique<DesignedPopup>(idOf(L"popup", shown.variant, shown.iconText),
                                                     Rect{x, top, kPopup, 206});
        popup->setStyleKey(std::wstring(shown.variant));
        popup->setIconText(std::wstring(shown.iconText));
        popup->setTitle(std::wstring(shown.title));
        popup->setMessage(std::wstring(shown.message));
        popup->setActions({{L"Záznam", L""}, {L"Zavřít", L"", true}});
        if (shown.focused) {
            const Control& button = popup->actionButton(1);
            panel.add(std::make_unique<FocusStage>(std::move(popup), button));
        } else {
            setState(popup->closeButton(), State::Hot);
            panel.add(std::move(popup));
        }
        x += kPopup + kGap;
    }
}

} // namespace

void buildControlsPage(Panel& page)
{
    constexpr std::int32_t kTop = 62;
    addLiveRow(page);
    // Below the live row: a panel over it would take its mouse.
    auto& stills = page.addControl(std::make_unique<StillPanel>(
        L"stills", Rect{0, kTop, page.bounds().width, page.bounds().height - kTop}));
    addButtons(stills, 0);
    addLabels(stills, 0);
    addCheckBoxes(stills, 136);
    addProgressBars(stills, 238);
    addTooltips(stills, 334);
    addFields(stills, 426);
    addTitleBars(stills, 616);
    addPopups(stills, 666);
}

} // namespace showcase
