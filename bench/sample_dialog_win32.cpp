#include "bench/sample_dialog_win32.h"

#include "vela/controls/check_box.h"
#include "vela/controls/chrome_title_bar.h"
#include "vela/controls/label.h"
#include "vela/controls/text_input.h"

#include <windows.h>

namespace bench {

SampleDialog::SampleDialog(std::shared_ptr<const vela::StyleSheet> styles)
{
    constexpr std::int32_t kBar = 40;
    setCustomFrame(true);
    setDiagnostics(false);
    create(::GetModuleHandleW(nullptr), L"Tamber Setup", kSampleDialog, {WS_POPUP | WS_SYSMENU, 0});
    const auto [width, height] = kSampleDialog;
    root().add(std::make_unique<vela::ChromeTitleBar>(L"chrome", vela::Rect{0, 0, width, kBar},
                                                      L"Tamber Setup", vela::Theme()));
    popup_ = &root().addControl(
        std::make_unique<vela::DesignedPopup>(L"popup", vela::Rect{0, kBar, width, height - kBar}));
    popup_->setTitle(L"Instalace Tambere");
    popup_->setGlyph(L"i");
    popup_->setMessage(
        L"Setup nainstaluje Tambere, prida Start Menu a po instalaci na pozadi pripravi lokalni "
        L"modelove i vyvojove prostredi, kdyz to Windows dovoli.");
    popup_->setActions({{L"Instalovat", L"install", true}, {L"Zavrit", L"close"}});
    root()
        .addControl(std::make_unique<vela::Label>(L"install-folder-label", vela::Rect{64, 180, 220, 24},
                                                  L"Instalacni slozka"))
        .setStyleKey(L"title");
    root().add(std::make_unique<vela::TextInput>(L"install-folder", vela::Rect{64, 206, 438, 32},
                                                 L"C:\\Program Files\\Tamber"));
    root().add(std::make_unique<vela::ThemedButton>(L"browse", vela::Rect{514, 205, 110, 34}, L"Vybrat"));
    root()
        .addControl(std::make_unique<vela::CheckBox>(L"start-with-windows", vela::Rect{64, 252, 560, 28},
                                                     L"Spouštět s Windows"))
        .setChecked(true);
    root().add(std::make_unique<vela::CheckBox>(L"desktop-shortcut", vela::Rect{64, 286, 560, 28},
                                                L"Zástupce na ploše"));
    applyStyles(std::move(styles));
}

} // namespace bench
