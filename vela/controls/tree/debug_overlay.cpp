#include "vela/controls/tree/debug_overlay.h"

#include "vela/controls/tree/diagnostics.h"

namespace vela {

namespace {

constexpr std::wstring_view kModeNames[kDebugModeCount] = {L"basic", L"layout", L"contours", L"skin"};

constexpr std::wstring_view onOff(bool on) noexcept { return on ? L"on" : L"off"; }

} // namespace

DebugOverlay afterDebugKey(DebugOverlay overlay, KeyModifiers modifiers) noexcept
{
    const bool plain = !modifiers.control && !modifiers.shift && !modifiers.alt;
    if (plain) {
        overlay.on = !overlay.on;
        return overlay;
    }
    overlay.on = true;
    // Ctrl comes before Alt.
    if (modifiers.control && modifiers.shift)
        overlay.showContent = !overlay.showContent;
    else if (modifiers.control)
        overlay.mode = static_cast<DebugMode>((static_cast<int>(overlay.mode) + 1) % kDebugModeCount);
    else if (modifiers.alt)
        overlay.showContours = !overlay.showContours;
    else
        overlay.showIds = !overlay.showIds;
    return overlay;
}

std::wstring debugHeader(const DebugOverlay& overlay, Point cursor, std::wstring_view hotId)
{
    std::wstring header = L"F12 UI debug";
    header.append(L" | mode=").append(kModeNames[static_cast<int>(overlay.mode)]);
    header.append(L" | ids=").append(onOff(overlay.showIds));
    header.append(L" | content=").append(onOff(overlay.showContent));
    header.append(L" | contours=").append(onOff(overlay.showContours));
    header.append(L" | cursor ").append(toText(cursor));
    if (!hotId.empty())
        header.append(L" | hot=").append(hotId);
    return header;
}

} // namespace vela
