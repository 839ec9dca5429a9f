#include "app/dialogs/choice_dialog.h"

#include "app/dialogs/folder_picker.h"

#include "vela/controls/widgets/label.h"

#include <span>

namespace setup {
namespace {

using vela::Rect;

struct ChoiceButton {
    std::wstring_view text;
    std::wstring_view id;
    SetupAction action;
};

// The first is the one that Enter presses.
constexpr ChoiceButton kInstallButtons[] = {
    {L"Instalovat", L"install", SetupAction::Install},
    {L"Zavrit", L"close", SetupAction::Close},
};
constexpr ChoiceButton kInstalledButtons[] = {
    {L"Preinstalovat", L"reinstall", SetupAction::Reinstall},
    {L"Odinstalovat", L"uninstall", SetupAction::Uninstall},
    {L"Zavrit", L"close", SetupAction::Close},
};

// The two forms of the dialog.
struct ChoiceForm {
    std::wstring_view title;
    std::wstring_view iconText;
    std::wstring_view body;
    std::wstring_view folderHint;
    std::int32_t folderWidth;
    std::span<const ChoiceButton> buttons;
};

constexpr ChoiceForm kInstallForm{
    L"Instalace Tambere",
    L"i",
    L"Setup nainstaluje Tambere, prida Start Menu a po instalaci na pozadi pripravi lokalni modelove i "
    L"vyvojove prostredi, kdyz to Windows dovoli.",
    L"Vychozi cesta je C:\\Program Files\\Tamber. Muzes vybrat jinou slozku.",
    438,
    kInstallButtons};
constexpr ChoiceForm kInstalledForm{
    L"Tamber je nainstalovany",
    L"!",
    L"Setup nasel existujici instalaci. Muzes ji preinstalovat, odebrat z Windows, nebo nechat beze zmen.",
    L"Preinstalace zachova aktualni MSI produkt. Pro presun jinam nejdriv odinstaluj a pak nainstaluj znovu.",
    560,
    kInstalledButtons};

std::vector<vela::PopupAction> actionsOf(const ChoiceForm& form)
{
    std::vector<vela::PopupAction> actions;
    for (const ChoiceButton& button : form.buttons)
        actions.push_back({std::wstring(button.text), std::wstring(button.id), actions.empty()});
    return actions;
}

} // namespace

ChoiceDialog::ChoiceDialog(DialogHost host, const ChoiceState& state, FolderPicker pickFolder)
    : SetupDialog(std::move(host),
                  {.size = {690, 420},
                   .popupId = L"setup.popup",
                   .columnLeft = 64,
                   .columnRight = 66,
                   .minimizable = true},
                  L"Tamber Setup"),
      pickFolder_(std::move(pickFolder))
{
    const ChoiceForm& form = state.installed ? kInstalledForm : kInstallForm;
    popup().setTitle(std::wstring(form.title));
    popup().setIconText(std::wstring(form.iconText));
    popup().setMessage(std::wstring(form.body));
    popup().setActions(actionsOf(form));
    for (const ChoiceButton& button : form.buttons) {
        if (button.action == SetupAction::Close)
            continue; // the window closes itself, as by its title bar, and nothing is chosen
        subscribe(std::wstring(button.id), [this, action = button.action](vela::CommandEvent&) {
            action_ = action;
            endModal(1);
        });
    }
    addFolderField(state.installed);
    folder_->setText(state.choice.install.installDir);
    addOptions(state.choice.install);
    finish(&popup().actionButton(0));
}

ChoiceDialog::~ChoiceDialog() { destroy(); }

void ChoiceDialog::addFolderField(bool installed)
{
    const ChoiceForm& form = installed ? kInstalledForm : kInstallForm;
    root()
        .addControl(std::make_unique<vela::Label>(L"install-folder-label", Rect{64, 180, 220, 24},
                                                  L"Instalacni slozka"))
        .setStyleKey(L"title");
    folder_ = &root().addControl(std::make_unique<vela::TextInput>(
        L"install-folder", Rect{64, 206, form.folderWidth, 32}, kDefaultInstallFolder));
    folder_->setEditLock(installed);
    folder_->setHint(std::wstring(form.folderHint));
    if (installed)
        return;
    auto& browse = root().addControl(
        std::make_unique<vela::ThemedButton>(L"browse", Rect{514, 205, 110, 34}, L"Vybrat"));
    browse.setHint(L"Otevre systemovy vyber instalacni slozky.");
    browse.setClickHandler([this](vela::CommandEvent&) { this->pickFolder(); });
}

void ChoiceDialog::addOptions(const InstallRequest& initial)
{
    const auto add = [this](const wchar_t* id, std::int32_t top, const wchar_t* text, bool checked,
                            const wchar_t* hint) {
        auto& box = root().addControl(std::make_unique<vela::CheckBox>(id, Rect{64, top, 560, 28}, text));
        box.setChecked(checked);
        box.setHint(hint);
        return &box;
    };
    startWithWindows_ = add(L"start-with-windows", 252, L"Spouštět s Windows", initial.startWithWindows,
                            L"Po instalaci vytvori Tamber.lnk ve Startup slozce aktualniho uzivatele. "
                            L"Tamber se po prihlaseni spusti rovnou schovany v tray.");
    desktopShortcut_ = add(L"desktop-shortcut", 286, L"Zástupce na ploše", initial.desktopShortcut,
                           L"Vytvori nebo zachova Tamber.lnk na plose aktualniho uzivatele.");
}

void ChoiceDialog::pickFolder()
{
    if (const auto picked = pickFolder_ ? pickFolder_(handle(), folder_->text()) : std::nullopt)
        folder_->setText(*picked);
}

SetupChoice ChoiceDialog::choice() const
{
    return {action_, {folder_->text(), startWithWindows_->isChecked(), desktopShortcut_->isChecked()}};
}

SetupChoice showSetupChoice(DialogHost host, const ChoiceState& state)
{
    ChoiceDialog dialog(std::move(host), state, pickInstallFolder);
    if (dialog.open())
        dialog.runModal();
    return dialog.choice();
}

} // namespace setup
