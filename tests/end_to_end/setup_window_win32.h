// The setup's windows as its user has them: found on the screen, read by their titles and pictures, used with
// the pointer and the keyboard of the desktop. The setup knows nothing of it.
#pragma once

#include "tests/end_to_end/machine_win32.h"

#include "app/dialogs/setup_dialog.h"
#include "vela/geometry.h"
#include "vela/render/pixels/pixel_buffer.h"

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace end_to_end {

// Where the controls of a dialog lie, by their ids. Read off a dialog of the same make that is never shown.
class DialogPlan {
public:
    explicit DialogPlan(setup::SetupDialog& dialog);

    // In the client area of a window of that height: taller dialogs keep their buttons at the bottom.
    vela::Point middleOf(std::wstring_view id, std::int32_t clientHeight) const;

private:
    std::int32_t height_;
    std::map<std::wstring, vela::Rect, std::less<>> places_;
};

inline constexpr std::wstring_view kSetupTitle = L"Tamber - v" TAMBER_VERSION L" Setup";

const DialogPlan& installPlan();   // the first window where nothing is installed
const DialogPlan& installedPlan(); // and where the product is there
const DialogPlan& progressPlan();
const DialogPlan& noticePlan();

class SetupWindow {
public:
    // Waits until the program shows a window of that title and it is in front; throws, which ends the test,
    // when that does not come.
    SetupWindow(const Program& setup, std::wstring_view title, const DialogPlan& plan);

    HWND handle() const noexcept { return window_; }
    bool isThere() const noexcept { return ::IsWindowVisible(window_); }
    // A press of the left button and its release on the control of that id.
    void click(std::wstring_view id) const;
    void pointAt(std::wstring_view id) const;
    // As it is on the screen, row by row.
    std::vector<vela::Pixel> picture() const;
    // Whether there is more red than in a usual window.
    bool hasDangerLook() const;
    // A PNG file in the build's folder of screenshots, once the picture rests.
    void savePicture(const std::wstring& name) const;

private:
    vela::Point onScreen(std::wstring_view id) const;
    std::vector<vela::Pixel> restingPicture() const;

    HWND window_ = nullptr;
    const DialogPlan* plan_;
};

// Keys go to whatever has the focus.
void press(WORD key, std::initializer_list<WORD> held = {});
void type(std::wstring_view text);

std::wstring clipboardText();

} // namespace end_to_end
