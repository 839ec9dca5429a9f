#include "vela/controls/window/window_diagnostics.h"

#include "vela/controls/tree/diagnostics.h"
#include "vela/text.h"

namespace vela {

namespace {

std::wstring factsText(const FrameFacts& facts)
{
    return L" cursorScreen=" + toText(facts.cursorScreen) + L" cursorClient=" + toText(facts.cursorClient) +
           L" clientRect=" + toText(facts.client) + L" effectiveMinimumClientSize=" +
           toText(facts.minimumClient) + L" minimumWindowTrackSize=" + toText(facts.minimumTrack);
}

Rect rectOf(const Edges& edges) noexcept
{
    return {edges.left, edges.top, edges.right - edges.left, edges.bottom - edges.top};
}

} // namespace

std::wstring hitTestDiagnostic(std::intptr_t hit, const FrameFacts& facts)
{
    return L"[Vela diagnostic] WM_NCHITTEST hit=" + decimalText(hit) + factsText(facts);
}

std::wstring sizingDiagnostic(std::uintptr_t edge, const Edges& before, const Edges& after,
                              const FrameFacts& facts)
{
    return L"[Vela diagnostic] WM_SIZING edge=" + decimalText(edge) + L" rectBefore=" +
           toText(rectOf(before)) + L" rectAfter=" + toText(rectOf(after)) + factsText(facts);
}

std::wstring trackingDiagnostic(const TrackingSizes& sizes, const FrameFacts& facts)
{
    return L"[Vela diagnostic] WM_GETMINMAXINFO maxSize=" + toText(sizes.maximised) + L" maxPosition=" +
           toText(sizes.maximisedAt) + L" maxTrack=" + toText(sizes.largest) + L" minTrack=" +
           toText(sizes.smallest) + factsText(facts);
}

} // namespace vela
