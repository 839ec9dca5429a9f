// The switches of the debugging overlay and the words of its header. The overlay is drawn on top of the tree
// and changes nothing in it.
#pragma once

#include "vela/controls/tree/input_events.h"
#include "vela/geometry.h"
#include "vela/platform_handles.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vela {

class Control;

enum class DebugMode : std::uint8_t { Basic, Layout, Contours, Skin };
inline constexpr int kDebugModeCount = 4;

struct DebugOverlay {
    bool on = false;
    DebugMode mode = DebugMode::Basic;
    bool showIds = false;
    bool showContent = false;
    bool showContours = false;
    friend bool operator==(const DebugOverlay&, const DebugOverlay&) = default;
};

inline constexpr std::wstring_view kDebugKeyHelp =
    L"F12 toggle | Ctrl+F12 mode | Shift+F12 ids | Ctrl+Shift+F12 content | Alt+F12 contours";

// What F12 does with these modifiers.
DebugOverlay afterDebugKey(DebugOverlay overlay, KeyModifiers modifiers) noexcept;

// `hotId` is empty when no control is under the pointer.
std::wstring debugHeader(const DebugOverlay& overlay, Point cursor, std::wstring_view hotId);

// Draws the overlay over the painted tree. `hot` is the control under the pointer, or null.
void paintDebugOverlay(HDC dc, const Control& root, const DebugOverlay& overlay, Point cursor,
                       const Control* hot, std::int32_t dpi);

} // namespace vela
