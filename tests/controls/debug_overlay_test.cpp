#include "vela/controls/debug_overlay.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(DebugOverlay, EveryKeySwitchesOneThing)
{
    constexpr KeyModifiers kPlain{};
    constexpr KeyModifiers kControl{true, false, false};
    constexpr KeyModifiers kShift{false, true, false};
    constexpr KeyModifiers kControlShift{true, true, false};
    constexpr KeyModifiers kAlt{false, false, true};
    const DebugOverlay off;
    const struct {
        KeyModifiers modifiers;
        DebugOverlay expected;
    } rows[] = {
        {kPlain, {true, DebugMode::Basic, false, false, false}},
        {kControl, {true, DebugMode::Layout, false, false, false}},
        {kShift, {true, DebugMode::Basic, true, false, false}},
        {kControlShift, {true, DebugMode::Basic, false, true, false}},
        {kAlt, {true, DebugMode::Basic, false, false, true}},
        {{true, false, true}, {true, DebugMode::Layout, false, false, false}},
        {{true, true, true}, {true, DebugMode::Basic, false, true, false}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(afterDebugKey(off, row.modifiers), row.expected);

    DebugOverlay cycled = off;
    for (int i = 0; i < 4; ++i)
        cycled = afterDebugKey(cycled, kControl);
    EXPECT_EQ(cycled, (DebugOverlay{true, DebugMode::Basic, false, false, false}));
    const DebugOverlay ids = afterDebugKey(afterDebugKey(off, kShift), kShift);
    EXPECT_EQ(ids, (DebugOverlay{true, DebugMode::Basic, false, false, false}));
    const DebugOverlay all{true, DebugMode::Skin, true, true, true};
    EXPECT_EQ(afterDebugKey(all, kPlain), (DebugOverlay{false, DebugMode::Skin, true, true, true}));
}

TEST(DebugOverlay, TheHeaderSaysWhatIsOn)
{
    EXPECT_EQ(debugHeader({true, DebugMode::Contours, true, false, true}, {-3, 14}, L"browse"),
              L"F12 UI debug | mode=contours | ids=on | content=off | contours=on | cursor {x=-3,y=14} | "
              L"hot=browse");
    EXPECT_EQ(debugHeader({}, {0, 0}, {}),
              L"F12 UI debug | mode=basic | ids=off | content=off | contours=off | cursor {x=0,y=0}");
}

} // namespace
} // namespace vela
