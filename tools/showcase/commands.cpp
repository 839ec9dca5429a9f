#include "tools/showcase/commands.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace showcase {

using vela::KeyEvent;
using vela::KeyModifiers;

namespace {

constexpr std::uint32_t kPageUp = 0x21;
constexpr std::uint32_t kPageDown = 0x22;
constexpr std::uint32_t kDigit0 = 0x30;
constexpr std::uint32_t kPadPlus = 0x6B;
constexpr std::uint32_t kPadMinus = 0x6D;
constexpr std::uint32_t kF1 = 0x70;
constexpr std::uint32_t kF5 = 0x74;
constexpr std::uint32_t kPlus = 0xBB;
constexpr std::uint32_t kMinus = 0xBD;

constexpr KeyModifiers kNone{};
constexpr KeyModifiers kControl{true, false, false};
constexpr KeyModifiers kControlShift{true, true, false};

struct KeyRow {
    std::uint32_t key;
    KeyModifiers modifiers;
    Command command;
    bool arrow = false; // which a control may need
};
constexpr KeyRow kKeys[] = {
    {vela::kKeyRight, kNone, Command::NextSkin, true},
    {vela::kKeyLeft, kNone, Command::PreviousSkin, true},
    {vela::kKeyTab, kControl, Command::NextSkin},
    {vela::kKeyTab, kControlShift, Command::PreviousSkin},
    {kPageDown, kNone, Command::NextPage},
    {kPageUp, kNone, Command::PreviousPage},
    {kF5, kNone, Command::Reload},
    {kPlus, kControl, Command::Larger},
    {kPadPlus, kControl, Command::Larger},
    {kMinus, kControl, Command::Smaller},
    {kPadMinus, kControl, Command::Smaller},
    {kDigit0, kControl, Command::MonitorDpi},
    {kF1, kNone, Command::Help},
};

constexpr std::wstring_view kHelp[] = {
    L"Right, Left or Ctrl+Tab, Ctrl+Shift+Tab: the next skin, the one before",
    L"PageDown, PageUp: the next page, the one before",
    L"F5: read the skin file again (it is read by itself when it changes)",
    L"Ctrl+Plus, Ctrl+Minus, Ctrl+0: larger, smaller, as the monitor has it",
    L"F12, with Ctrl, Shift or Alt: the debugging overlay and its modes",
    L"Tab, Space, Enter: the controls of the first row are live",
    L"F1: these lines; Esc: close",
};

constexpr std::int32_t kDpis[] = {96, 120, 144, 168, 192, 240, 288};

} // namespace

std::optional<Command> commandFor(const KeyEvent& event, bool arrowsTaken)
{
    const auto* const row = std::find_if(std::begin(kKeys), std::end(kKeys), [&](const KeyRow& known) {
        return known.key == event.key && known.modifiers == event.modifiers && !(known.arrow && arrowsTaken);
    });
    return row == std::end(kKeys) ? std::nullopt : std::optional(row->command);
}

std::wstring commandHelp()
{
    std::wstring text;
    for (const std::wstring_view line : kHelp)
        text.append(text.empty() ? L"" : L"\n").append(line);
    return text;
}

std::int32_t steppedDpi(std::int32_t dpi, bool larger) noexcept
{
    if (larger) {
        const auto* const next = std::upper_bound(std::begin(kDpis), std::end(kDpis), dpi);
        return next == std::end(kDpis) ? dpi : *next;
    }
    const auto* const next = std::lower_bound(std::begin(kDpis), std::end(kDpis), dpi);
    return next == std::begin(kDpis) ? dpi : *(next - 1);
}

} // namespace showcase
