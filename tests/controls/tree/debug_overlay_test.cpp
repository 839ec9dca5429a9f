#include "vela/controls/tree/debug_overlay.h"

#include "tests/controls/tree/fake_window.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/render/paint/paint_recorder.h"

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

#ifndef _WIN32 // there the product's renderer paints
TEST(DebugOverlay, EachModeDrawsWhatItPromises)
{
    FakeWindow window{{400, 300}};
    auto& button =
        window.root.addControl(std::make_unique<ThemedButton>(L"ok", Rect{10, 20, 100, 34}, L"OK"));
    button.setEnabled(false);
    const auto painted = [&](const DebugOverlay& overlay) {
        std::wstring texts;
        const PaintRecorder recorder;
        paintDebugOverlay(nullptr, window.root, overlay, {5, 6}, nullptr, 96);
        for (const PaintCall& call : recorder.calls()) {
            const auto* const outline = std::get_if<ShapeOutlineCall>(&call);
            if (outline && outline->rect == button.bounds())
                texts += outline->kind == ShapeKind::Rect ? L"[box]" : L"[contour]";
            else if (const auto* const text = std::get_if<TextCall>(&call))
                texts += L"<" + text->text + L">";
        }
        return texts;
    };
    const auto shows = [&](const DebugOverlay& overlay, std::wstring_view text) {
        return painted(overlay).find(text) != std::wstring::npos;
    };
    EXPECT_TRUE(shows({.on = true}, L"[box]"));
    EXPECT_TRUE(shows({.on = true}, L"<F12 UI debug | mode=basic"));
    EXPECT_FALSE(shows({.on = true}, L"<ok>"));
    EXPECT_TRUE(shows({.on = true, .showIds = true}, L"<ok>"));
    EXPECT_TRUE(shows({.on = true, .mode = DebugMode::Layout}, L"<{x=10,y=20,w=100,h=34} Left|Top>"));
    EXPECT_TRUE(shows({.on = true, .mode = DebugMode::Contours}, L"[box][contour]"));
    EXPECT_TRUE(shows({.on = true, .showContours = true}, L"[box][contour]"));
    EXPECT_FALSE(shows({.on = true}, L"[contour]"));
    EXPECT_TRUE(shows({.on = true, .mode = DebugMode::Skin}, L"<style=default disabled shape="));
    EXPECT_TRUE(shows({.on = true, .showContent = true}, L"[box][box]"));
    button.setVisible(false);
    EXPECT_FALSE(shows({.on = true, .showIds = true}, L"<ok>"));
}

#endif

} // namespace
} // namespace vela
