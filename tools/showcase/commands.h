// What the showcase's keys do, beside those of the controls in it.
#pragma once

#include "vela/controls/tree/input_events.h"

#include <cstdint>
#include <optional>
#include <string>

namespace showcase {

enum class Command : std::uint8_t {
    NextSkin,
    PreviousSkin,
    NextPage,
    PreviousPage,
    Reload,
    Larger,
    Smaller,
    MonitorDpi,
    Help,
};

// `arrowsTaken`: the control that has the keyboard uses the arrow keys itself.
std::optional<Command> commandFor(const vela::KeyEvent& event, bool arrowsTaken);

// The keys and what they do, a line for each command.
std::wstring commandHelp();

// The DPI that one step leads to from another: the scales that Windows offers.
std::int32_t steppedDpi(std::int32_t dpi, bool larger) noexcept;

} // namespace showcase
