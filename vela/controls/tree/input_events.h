// Mouse and keyboard input as the control tree sees it, free of Windows' messages. Points are relative to the
// receiver; key codes are Windows' virtual keys, which the tree compares and never translates.
#pragma once

#include "vela/geometry.h"

#include <cstdint>

namespace vela {

struct KeyModifiers {
    bool control = false;
    bool shift = false;
    bool alt = false;
    friend constexpr bool operator==(const KeyModifiers&, const KeyModifiers&) = default;
};

enum class MouseAction : std::uint8_t { Press, Release, ContextMenu, Wheel };
enum class MouseButton : std::uint8_t { Left, Right, Middle };

struct MouseEvent {
    MouseAction action = MouseAction::Press;
    MouseButton button = MouseButton::Left;
    Point position;
    std::int32_t clicks = 1;     // 2 for a double, 3 for a triple click
    std::int32_t wheelDelta = 0; // in 120ths of a notch, away from the user is positive
    std::uint32_t time = 0;      // milliseconds, of a turn of the wheel
    KeyModifiers modifiers;
};

struct KeyEvent {
    std::uint32_t key = 0;
    KeyModifiers modifiers;
    bool repeated = false;
};

// The virtual keys that controls and windows know by name.
inline constexpr std::uint32_t kKeyBack = 0x08;
inline constexpr std::uint32_t kKeyTab = 0x09;
inline constexpr std::uint32_t kKeyReturn = 0x0D;
inline constexpr std::uint32_t kKeyEscape = 0x1B;
inline constexpr std::uint32_t kKeySpace = 0x20;
inline constexpr std::uint32_t kKeyEnd = 0x23;
inline constexpr std::uint32_t kKeyHome = 0x24;
inline constexpr std::uint32_t kKeyLeft = 0x25;
inline constexpr std::uint32_t kKeyUp = 0x26;
inline constexpr std::uint32_t kKeyRight = 0x27;
inline constexpr std::uint32_t kKeyDown = 0x28;
inline constexpr std::uint32_t kKeySnapshot = 0x2C; // Print Screen
inline constexpr std::uint32_t kKeyInsert = 0x2D;
inline constexpr std::uint32_t kKeyDelete = 0x2E;
inline constexpr std::uint32_t kKeyF12 = 0x7B;

// Where the pointer is said to be when it has left: far outside every control, so nothing stays hot.
inline constexpr Point kPointerGone{-32000, -32000};

} // namespace vela
