#include "app/dialogs/notice_dialog.h"

namespace setup {

NoticeDialog::NoticeDialog(DialogHost host, const Notice& notice)
    : SetupDialog(std::move(host),
                  {.size = {620, 276}, .popupId = L"notice.popup", .columnLeft = 64, .columnRight = 64},
                  notice.title)
{
    popup().setStyleKey(notice.danger ? L"danger" : L"default");
    popup().setTitle(std::wstring(notice.title));
    popup().setIconText(notice.danger ? L"X" : L"i");
    popup().setMessage(notice.body);
    popup().setActions({{L"OK", L"ok", true}});
    subscribe(L"ok", [this](vela::CommandEvent&) { endModal(1); });
    finish(&popup().actionButton(0));
    growBy(popup().missingHeight());
}

NoticeDialog::~NoticeDialog() { destroy(); }

void showNotice(DialogHost host, const Notice& notice)
{
    NoticeDialog dialog(std::move(host), notice);
    if (dialog.open())
        dialog.runModal();
}

} // namespace setup
