// The system's clipboard, caret rate and menus for the text fields of one window.
#pragma once

#include "vela/controls/widgets/text_services.h"
#include "vela/platform_handles.h"

namespace vela {

class WindowsTextServices final : public TextServices {
public:
    // The handle that owns the clipboard's content and the menu; borrowed, may be null.
    void setOwner(HWND owner) noexcept { owner_ = owner; }

    bool clipboardHasText() override;
    std::optional<std::wstring> clipboardText() override;
    void setClipboardText(std::wstring_view text) override;
    std::uint32_t caretBlinkTime() override;
    std::optional<TextCommand> chooseCommand(Point client, const TextCommandSet& enabled) override;

private:
    HWND owner_ = nullptr;
};

} // namespace vela
