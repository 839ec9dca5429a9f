// The first window: install, or reinstall and uninstall when the product is there.
#pragma once

#include "app/cli/setup_choice.h"
#include "app/dialogs/setup_dialog.h"

#include "vela/controls/widgets/check_box.h"
#include "vela/controls/widgets/text_input.h"

#include <functional>
#include <optional>

namespace setup {

class ChoiceDialog final : public SetupDialog {
public:
    // Asked with the dialog's window and the field's present text; none when the user changed nothing.
    using FolderPicker = std::function<std::optional<std::wstring>(HWND, const std::wstring&)>;

    // `state.installed` decides which of the two forms it has, whatever the machine is like.
    ChoiceDialog(DialogHost host, const ChoiceState& state, FolderPicker pickFolder = {});
    ChoiceDialog(const ChoiceDialog&) = delete;
    ChoiceDialog& operator=(const ChoiceDialog&) = delete;
    ~ChoiceDialog() override;

    // What was chosen, once the dialog has ended; closing without a button is the action Close.
    SetupChoice choice() const;

private:
    void addFolderField(bool installed);
    void addOptions(const InstallRequest& initial);
    void pickFolder();

    SetupAction action_ = SetupAction::Close;
    FolderPicker pickFolder_;
    vela::TextInput* folder_ = nullptr; // all owned by the root
    vela::CheckBox* startWithWindows_ = nullptr;
    vela::CheckBox* desktopShortcut_ = nullptr;
};

SetupChoice showSetupChoice(DialogHost host, const ChoiceState& state);

} // namespace setup
