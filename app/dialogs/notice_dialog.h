// How a run ended, or why there is none: a title, a text and OK. Ctrl+C copies it.
#pragma once

#include "app/cli/notice.h"
#include "app/dialogs/setup_dialog.h"

namespace setup {

class NoticeDialog final : public SetupDialog {
public:
    // Taller than usual where the text would not fit otherwise.
    NoticeDialog(DialogHost host, const Notice& notice);
    NoticeDialog(const NoticeDialog&) = delete;
    NoticeDialog& operator=(const NoticeDialog&) = delete;
    ~NoticeDialog() override;

protected:
    // The user may have turned to something else while the run went on.
    void onShown() override { requestAttention(); }
};

// Returns when it is closed.
void showNotice(DialogHost host, const Notice& notice);

} // namespace setup
