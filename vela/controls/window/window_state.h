// What a window is, for its two sides: the one that its program and its controls know, and the one that talks
// to Windows.
#pragma once

#include "vela/controls/system/taskbar_progress.h"
#include "vela/controls/tree/debug_overlay.h"
#include "vela/controls/tree/input_router.h"
#include "vela/controls/tree/panel.h"
#include "vela/controls/window/tooltip_timing.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace vela {

class StyleSheet;

#ifdef NDEBUG
inline constexpr bool kDiagnosticsByDefault = false;
#else
inline constexpr bool kDiagnosticsByDefault = true;
#endif

struct WindowState {
    // Sees every message first; true when it handled the message, with the answer in the last argument.
    using MessageHook =
        std::function<bool(HWND, unsigned message, std::uintptr_t, std::intptr_t, std::intptr_t& result)>;
    // Gives the styles for the system's present light or dark and high-contrast mode.
    using StyleSource = std::function<std::shared_ptr<const StyleSheet>()>;

    HWND handle = nullptr;
    std::wstring title;
    Panel root{L"root", {}};
    bool customFrame = false;
    std::int32_t resizeBorder = 0; // 96-DPI pixels
    bool quitOnDestroy = true;
    MessageHook messageHook;
    bool maximised = false;
    bool inSizeMove = false;
    bool diagnostics = kDiagnosticsByDefault;
    bool closeOnDeactivate = false;
    std::uint32_t tooltipDelay = 650; // milliseconds
    Size lastClientSize;              // at the last layout
    bool shrinkToFit = false;
    std::int32_t fixedScale = 0; // 0 for none
    std::int32_t dpi = 96;       // the scale of all that is drawn
    std::wstring shutdownBlockReason;
    TaskbarStatus taskbarStatus;
    InputRouter input{root};
    TooltipTiming tooltipTiming;
    DebugOverlay debugOverlay;
    std::shared_ptr<const StyleSheet> styles;
    StyleSource styleSource;
};

} // namespace vela
