// What a text field needs from the system: the clipboard, the caret's rate and a menu of commands.
#pragma once

#include "vela/geometry.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vela {

enum class TextCommand : std::uint8_t { Undo, Redo, Cut, Copy, Paste, Erase, SelectAll };
inline constexpr int kTextCommandCount = 7;

// Which commands would do something now.
using TextCommandSet = std::array<bool, kTextCommandCount>;

class TextServices {
public:
    TextServices() = default;
    TextServices(const TextServices&) = delete;
    TextServices& operator=(const TextServices&) = delete;
    virtual ~TextServices() = default;

    virtual bool clipboardHasText() = 0;
    virtual std::optional<std::wstring> clipboardText() = 0;
    virtual void setClipboardText(std::wstring_view text) = 0;

    // Milliseconds that the caret is shown and then hidden; 0 when it does not blink.
    virtual std::uint32_t caretBlinkTime() = 0;

    // Opens the menu at a client point and waits for the choice; none when the user chose nothing.
    virtual std::optional<TextCommand> chooseCommand(Point client, const TextCommandSet& enabled) = 0;
};

} // namespace vela
