// The setup's own dialogs in every state they can be in, in any skin and at any DPI: for pictures of them and
// for checks on them. Nothing is installed and no window is ever shown.
#pragma once

#include "app/dialogs/setup_dialog.h"

#include "vela/render/gdi/dib_gdi.h"
#include "vela/theme/skins/skin_document.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace stage {

using StyleSheetPointer = std::shared_ptr<const vela::StyleSheet>;

// A dialog with its contents.
struct Scene {
    std::wstring_view name;
    std::unique_ptr<setup::SetupDialog> (*build)(const setup::DialogHost& host);
};
std::span<const Scene> scenes() noexcept;

// What the user does to it. Hot, pressed and disabled hold for all controls at once.
enum class Act : std::uint8_t { Rest, Hot, Pressed, Disabled, Focus };

class DialogStage {
public:
    DialogStage(const Scene& scene, StyleSheetPointer styles);
    DialogStage(const DialogStage&) = delete;
    DialogStage& operator=(const DialogStage&) = delete;
    ~DialogStage();

    explicit operator bool() const noexcept { return open_; } // false when Windows refused the window

    // What a monitor of that DPI would make of the window, in the same message.
    void scaleTo(std::int32_t dpi);

    // From rest; a stage plays one act.
    void play(Act act);
    // Gives the keyboard to the next control; null when it has come round to the first.
    const vela::Control* focusNext();

    setup::SetupDialog& dialog() noexcept { return *dialog_; }
    // Those that have a place of their own: not the root, the popup and what is there to be dragged.
    std::vector<const vela::Control*> leaves() const;
    std::unique_ptr<vela::DibSurface> picture() const;

private:
    StyleSheetPointer styles_;
    std::unique_ptr<setup::SetupDialog> dialog_;
    bool open_;
    const vela::Control* firstFocused_ = nullptr;
};

} // namespace stage
