#include "vela/controls/window/window_diagnostics.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(WindowDiagnosticsTest, LinesAreSpelledAsToolsExpect)
{
    const FrameFacts facts{{-7, 8}, {1, 2}, {0, 0, 690, 420}, {300, 200}, {316, 239}};
    const std::wstring common = L" cursorScreen={x=-7,y=8} cursorClient={x=1,y=2} "
                                L"clientRect={x=0,y=0,w=690,h=420} "
                                L"effectiveMinimumClientSize=300x200 minimumWindowTrackSize=316x239";
    EXPECT_EQ(hitTestDiagnostic(13, facts), L"[Vela diagnostic] WM_NCHITTEST hit=13" + common);
    EXPECT_EQ(sizingDiagnostic(1, {10, 20, 60, 80}, {0, 20, 60, 80}, facts),
              L"[Vela diagnostic] WM_SIZING edge=1 rectBefore={x=10,y=20,w=50,h=60} "
              L"rectAfter={x=0,y=20,w=60,h=60}" +
                  common);
    EXPECT_EQ(trackingDiagnostic({{1000, 760}, {0, -4}, {1920, 1080}, {316, 239}}, facts),
              L"[Vela diagnostic] WM_GETMINMAXINFO maxSize=1000x760 maxPosition={x=0,y=-4} "
              L"maxTrack=1920x1080 minTrack=316x239" +
                  common);
}

} // namespace
} // namespace vela
