// A window that runs a message loop of its own until it ends, while its owner is disabled. Ends with 5 when
// it is closed by anything but endModal; 0 is never a result that arrives.
#pragma once

#include "vela/controls/window/window.h"

namespace vela {

inline constexpr int kModalClosed = 5;

class DialogWindow : public Window {
public:
    DialogWindow();
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;
    ~DialogWindow() override;

    // The window that is disabled while the dialog runs, when runModal names none.
    void setOwner(HWND owner) noexcept { owner_ = owner; }

    // Shows the dialog and returns its result once its window is gone. A quit request that arrives meanwhile
    // is posted again for the loop outside.
    int runModal(HWND owner = nullptr);
    void endModal(int result);

protected:
    // Once runModal has brought the window up.
    virtual void onShown() {}
    void onDestroyed() override;

private:
    void runLoop();

    HWND owner_ = nullptr;
    int result_ = 0;
    bool done_ = false;
};

} // namespace vela
