#include "tools/dialog_stage/dialog_stage_win32.h"

#include "app/cli/action_texts.h"
#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/notice_dialog.h"
#include "app/dialogs/progress_dialog.h"

#include "tools/window_camera_win32.h"

#include <windows.h>

namespace stage {
namespace {

using setup::SetupAction;

// A user name and a log path as long as they get, and the longest of the installer's sentences.
setup::SetupActionResult longFailure()
{
    setup::SetupActionResult result;
    result.exitCode = 1603;
    result.phase = L"install";
    result.logPath = L"C:\\Users\\Vojtech.Nepomuk.Prochazka-Dvoracek\\AppData\\Local\\Temp\\"
                     L"TamberSetup-4294967295-install.log";
    result.message = L"Windows Installer ohlasil zavaznou chybu behem instalace. Zavri prosim vsechny bezici "
                     L"programy Tamber, zkontroluj volne misto na disku a zkus instalaci znovu.";
    return result;
}

template <bool installed>
std::unique_ptr<setup::SetupDialog> buildChoice(const setup::DialogHost& host)
{
    setup::ChoiceState state;
    state.installed = installed;
    state.choice.install.startWithWindows = true;
    state.choice.install.desktopShortcut = false;
    return std::make_unique<setup::ChoiceDialog>(host, state);
}

template <SetupAction action, std::int32_t percent>
std::unique_ptr<setup::SetupDialog> buildProgress(const setup::DialogHost& host)
{
    const setup::ActionTexts& texts = *setup::textsOf(action);
    auto dialog = std::make_unique<setup::ProgressDialog>(host, texts.progressTitle, texts.progressBody);
    dialog->bar().setValue(percent);
    return dialog;
}

template <bool success>
std::unique_ptr<setup::SetupDialog> buildNotice(const setup::DialogHost& host)
{
    setup::SetupActionResult result;
    result.success = success;
    const setup::ResultTexts& texts = setup::textsOf(SetupAction::Install)->result;
    return std::make_unique<setup::NoticeDialog>(host, resultNotice(success ? result : longFailure(), texts));
}

constexpr Scene kScenes[] = {
    {L"choice", buildChoice<false>},
    {L"choice-installed", buildChoice<true>},
    {L"progress-begins", buildProgress<SetupAction::Install, setup::kFirstProgress>},
    {L"progress-half", buildProgress<SetupAction::Uninstall, 50>},
    {L"progress-ends", buildProgress<SetupAction::Reinstall, 92>},
    {L"notice", buildNotice<true>},
    {L"notice-danger", buildNotice<false>},
};

template <typename Visit>
void visitLeaves(vela::Control& control, const Visit& visit)
{
    if (!control.isVisible())
        return;
    const bool hollow = control.children().empty();
    if (hollow && (control.acceptsFocus() || !control.text().empty() || control.paintedSurface() ||
                   control.accessibleInfo().role == vela::AccessibleRole::PushButton))
        visit(control);
    for (vela::Control* child : control.children())
        visitLeaves(*child, visit);
}

} // namespace

std::span<const Scene> scenes() noexcept { return kScenes; }

DialogStage::DialogStage(const Scene& scene, StyleSheetPointer styles)
    : styles_(std::move(styles)),
      dialog_(scene.build({::GetModuleHandleW(nullptr), [this] { return styles_; }}))
{
    dialog_->setShrinkToFit(false); // pictures may be larger than the screen
    open_ = dialog_->open();
}

DialogStage::~DialogStage() = default;

void DialogStage::scaleTo(std::int32_t dpi) { tools::changeDpi(*dialog_, dialog_->designSize(), dpi); }

void DialogStage::play(Act act)
{
    if (act == Act::Focus)
        ::SendMessageW(dialog_->handle(), WM_SETFOCUS, 0, 0);
    visitLeaves(dialog_->root(), [act](vela::Control& leaf) {
        leaf.setHot(act == Act::Hot);
        leaf.setPressed(act == Act::Pressed);
        leaf.setEnabled(act != Act::Disabled && leaf.isEnabled());
    });
}

const vela::Control* DialogStage::focusNext()
{
    ::SendMessageW(dialog_->handle(), WM_KEYDOWN, VK_TAB, 0);
    const vela::Control* const focused = dialog_->focusedControl();
    if (focused == firstFocused_)
        return nullptr;
    if (!firstFocused_)
        firstFocused_ = focused;
    return focused;
}

std::vector<const vela::Control*> DialogStage::leaves() const
{
    std::vector<const vela::Control*> found;
    visitLeaves(dialog_->root(), [&found](vela::Control& leaf) { found.push_back(&leaf); });
    return found;
}

std::unique_ptr<vela::DibSurface> DialogStage::picture() const { return tools::pictureOf(*dialog_); }

} // namespace stage
