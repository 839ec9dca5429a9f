#include "tools/showcase/showcase_pages_win32.h"

#include "tools/showcase_content/exhibits.h"

#include "app/cli/action_texts.h"
#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/notice_dialog.h"
#include "app/dialogs/progress_dialog.h"

#include "vela/render/paint/paint.h"
#include "vela/theme/fields/record_scale.h"
#include "vela/theme/records/style_sheet.h"

#include <functional>
#include <memory>

namespace showcase {

using setup::DialogHost;
using setup::SetupDialog;
using vela::Rect;

namespace {

using DialogMaker = std::unique_ptr<SetupDialog> (*)(DialogHost);

// One of the setup's dialogs, painted where this control stands. A dialog takes its measures from the styles,
// so every skin has one of its own.
class DialogExhibit final : public vela::Control {
public:
    DialogExhibit(std::wstring id, Rect bounds, DialogMaker make)
        : Control(std::move(id), bounds), make_(make)
    {
    }

    bool applyStyle(const vela::StyleSheet& styles) override
    {
        // A copy: the dialog keeps its styles.
        auto own = std::make_shared<const vela::StyleSheet>(styles);
        dialog_ = make_({nullptr, [own] { return own; }, nullptr});
        vela::Panel& root = dialog_->root();
        const vela::Size size = dialog_->designSize();
        root.setBounds({0, 0, size.width, size.height});
        root.rescale(dpi());
        root.setBounds({0, 0, scaled(size.width), scaled(size.height)});
        root.setSurface(scaledToDpi(own->find<vela::PanelStyle>(root.styleKey()).surface, dpi()));
        styleTree(root, *own);
        setBounds({bounds().x, bounds().y, root.bounds().width, root.bounds().height});
        return true;
    }

    void paint(HDC dc, vela::Point origin) override
    {
        if (dialog_)
            dialog_->root().paint(dc, {origin.x + bounds().x, origin.y + bounds().y});
    }

private:
    DialogMaker make_;
    std::unique_ptr<SetupDialog> dialog_;
};

std::unique_ptr<SetupDialog> makeChoice(DialogHost host, bool installed)
{
    setup::ChoiceState state;
    state.installed = installed;
    state.choice.install.installDir = L"C:\\Program Files\\Tamber";
    state.choice.install.startWithWindows = true;
    return std::make_unique<setup::ChoiceDialog>(std::move(host), state);
}

std::unique_ptr<SetupDialog> makeNotice(DialogHost host, const setup::Notice& notice)
{
    return std::make_unique<setup::NoticeDialog>(std::move(host), notice);
}

struct DialogRow {
    const wchar_t* id;
    DialogMaker make;
};

constexpr DialogRow kChoices[] = {
    {L"setup.install", [](DialogHost host) { return makeChoice(std::move(host), false); }},
    {L"setup.installed", [](DialogHost host) { return makeChoice(std::move(host), true); }},
};

constexpr DialogRow kNotices[] = {
    {L"setup.progress",
     [](DialogHost host) -> std::unique_ptr<SetupDialog> {
         auto dialog = std::make_unique<setup::ProgressDialog>(
             std::move(host), L"Instaluju Tamber", L"Rozbaluju MSI balicek a cekam na Windows Installer.");
         dialog->bar().setValue(64);
         return dialog;
     }},
    {L"setup.success",
     [](DialogHost host) {
         return makeNotice(std::move(host), {setup::kSilentUninstallTexts.successTitle,
                                             std::wstring(setup::kSilentUninstallTexts.successText)});
     }},
    {L"setup.failure",
     [](DialogHost host) {
         return makeNotice(
             std::move(host),
             {setup::kSilentInstallTexts.failureTitle,
              L"Instalacni balicek se nepodarilo zapsat do docasne slozky. Zkontroluj volne misto "
              L"na disku.\n\nZaznam: C:\\Users\\Public\\TamberSetup-1234-install.log",
              true});
     }},
};

// Below each other in the middle of the page.
void addDialogs(vela::Panel& page, std::span<const DialogRow> rows)
{
    constexpr vela::Size kAbout{690, 420}; // until the styles tell
    constexpr std::int32_t kGap = 12;
    auto& stills = page.addControl(std::make_unique<StillPanel>(L"stills", page.localBounds()));
    std::int32_t top = kGap;
    const std::int32_t step = (page.bounds().height - kGap) / static_cast<std::int32_t>(rows.size());
    for (const DialogRow& row : rows) {
        stills.add(std::make_unique<DialogExhibit>(
            row.id, Rect{(page.bounds().width - kAbout.width) / 2, top, kAbout.width, step - kGap},
            row.make));
        top += step;
    }
}

constexpr Page kPages[] = {
    kControlsPage,
    {L"choices", [](vela::Panel& page) { addDialogs(page, kChoices); }},
    {L"notices", [](vela::Panel& page) { addDialogs(page, kNotices); }},
};

} // namespace

std::span<const Page> pages() noexcept { return kPages; }

} // namespace showcase
