#include "app/dialogs/progress_dialog.h"

#include "vela/controls/widgets/label.h"

namespace setup {

using vela::Rect;

ProgressDialog::ProgressDialog(DialogHost host, std::wstring_view title, std::wstring_view body)
    : SetupDialog(std::move(host),
                  {.size = {640, 286},
                   .popupId = L"setup-progress.popup",
                   .columnLeft = 74,
                   .columnRight = 74,
                   .closable = false,
                   .minimizable = true},
                  title)
{
    popup().setTitle(std::wstring(title));
    popup().setIconText(L"i");
    popup().setMessage(std::wstring(body));
    bar_ = &root().addControl(
        std::make_unique<vela::ProgressBar>(L"setup-progress.bar", Rect{74, 166, 492, 28}));
    bar_->setShowsLabel(false);
    bar_->setValue(kFirstProgress);
    root().addControl(std::make_unique<vela::Label>(L"setup-progress.status", Rect{74, 204, 492, 28},
                                                    L"Pracuju. Jakmile bude hotovo, ukazu vysledek."));
    setShutdownBlockReason(L"Instalace prave probiha.");
    setTaskbarProgress(vela::TaskbarProgress::Indeterminate);
    finish(nullptr);
}

ProgressDialog::~ProgressDialog() { destroy(); }

} // namespace setup
