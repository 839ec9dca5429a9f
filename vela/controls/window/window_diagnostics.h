// The lines that a window with diagnostics writes about its frame. Formats are fixed: tools read them.
#pragma once

#include "vela/controls/window/window_geometry.h"

#include <cstdint>
#include <string>

namespace vela {

// What every line about the frame ends with.
struct FrameFacts {
    Point cursorScreen;
    Point cursorClient;
    Rect client;
    Size minimumClient; // effective
    Size minimumTrack;  // of the whole window
};

// `hit` and `edge` are Windows' codes.
std::wstring hitTestDiagnostic(std::intptr_t hit, const FrameFacts& facts);
std::wstring sizingDiagnostic(std::uintptr_t edge, const Edges& before, const Edges& after,
                              const FrameFacts& facts);
std::wstring trackingDiagnostic(const TrackingSizes& sizes, const FrameFacts& facts);

} // namespace vela
