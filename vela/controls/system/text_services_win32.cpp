#include "vela/controls/system/text_services_win32.h"

#include "vela/owned_win32.h"
#include "vela/toolkit_texts.h"

#include <algorithm>
#include <cwchar>

namespace vela {

namespace {

struct MenuTraits {
    using Handle = HMENU;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle menu) noexcept { ::DestroyMenu(menu); }
};
using OwnedMenu = Owned<MenuTraits>;

struct GlobalMemoryTraits {
    using Handle = HGLOBAL;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle memory) noexcept { ::GlobalFree(memory); }
};
using OwnedGlobalMemory = Owned<GlobalMemoryTraits>;

// Another program may hold the clipboard for a moment.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) noexcept
    {
        constexpr int kTries = 5;
        constexpr DWORD kPause = 10; // milliseconds
        for (int i = 0; i < kTries && !opened_; ++i) {
            if (i > 0)
                ::Sleep(kPause);
            opened_ = ::OpenClipboard(owner) != FALSE;
        }
    }
    ~OpenedClipboard()
    {
        if (opened_)
            ::CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const noexcept { return opened_; }

private:
    bool opened_ = false;
};

// In the menu's order; a row without a text is a separator.
constexpr struct {
    TextCommand command;
    const wchar_t* ToolkitTexts::*text;
} kMenuRows[] = {
    {TextCommand::Undo, &ToolkitTexts::undo},   {TextCommand::Undo, nullptr},
    {TextCommand::Cut, &ToolkitTexts::cut},     {TextCommand::Copy, &ToolkitTexts::copy},
    {TextCommand::Paste, &ToolkitTexts::paste}, {TextCommand::Erase, &ToolkitTexts::erase},
    {TextCommand::SelectAll, nullptr},          {TextCommand::SelectAll, &ToolkitTexts::selectAll},
};

// 0 is what a menu answers when nothing was chosen.
constexpr UINT_PTR menuId(TextCommand command) noexcept { return static_cast<UINT_PTR>(command) + 1; }

} // namespace

bool WindowsTextServices::clipboardHasText() { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; }

std::optional<std::wstring> WindowsTextServices::clipboardText()
{
    const OpenedClipboard clipboard(owner_);
    const HANDLE data = clipboard ? ::GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* const text = data ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr;
    if (!text)
        return std::nullopt;
    // Whoever put it there may have forgotten the zero at its end.
    const std::size_t room = ::GlobalSize(data) / sizeof(wchar_t);
    std::wstring result(text, std::find(text, text + room, L'\0'));
    ::GlobalUnlock(data);
    return result;
}

void WindowsTextServices::setClipboardText(std::wstring_view text)
{
    OwnedGlobalMemory memory(::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t)));
    auto* const place = memory ? static_cast<wchar_t*>(::GlobalLock(memory.get())) : nullptr;
    if (!place)
        return;
    *std::copy(text.begin(), text.end(), place) = L'\0';
    ::GlobalUnlock(memory.get());
    const OpenedClipboard clipboard(owner_);
    if (!clipboard || !::EmptyClipboard())
        return;
    // What is handed over belongs to the system.
    if (::SetClipboardData(CF_UNICODETEXT, memory.get()))
        memory.release();
}

std::uint32_t WindowsTextServices::caretBlinkTime()
{
    const UINT time = ::GetCaretBlinkTime();
    return time == INFINITE ? 0 : time;
}

std::optional<TextCommand> WindowsTextServices::chooseCommand(Point client, const TextCommandSet& enabled)
{
    const OwnedMenu menu(::CreatePopupMenu());
    if (!menu)
        return std::nullopt;
    for (const auto& row : kMenuRows) {
        const bool on = enabled[static_cast<std::size_t>(row.command)];
        if (row.text)
            ::AppendMenuW(menu.get(), on ? MF_STRING : MF_STRING | MF_GRAYED, menuId(row.command),
                          toolkitTexts().*row.text);
        else
            ::AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
    }
    POINT at{client.x, client.y};
    ::ClientToScreen(owner_, &at);
    const int chosen = ::TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, at.x,
                                        at.y, 0, owner_, nullptr);
    const auto* const row =
        std::find_if(std::begin(kMenuRows), std::end(kMenuRows), [chosen](const auto& each) {
            return each.text && static_cast<int>(menuId(each.command)) == chosen;
        });
    return row == std::end(kMenuRows) ? std::nullopt : std::optional(row->command);
}

} // namespace vela
