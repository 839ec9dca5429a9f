#include "vela/controls/tree/input_router.h"

#include "tests/controls/tree/fake_window.h"
#include "vela/controls/tree/command_handlers.h"
#include "vela/controls/tree/pointer_clock.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/controls/window/window_diagnostics.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

// A dialog's buttons, as the router looks for them.
class FakeDialog : public Control {
public:
    FakeDialog() : Control(L"dialog", {0, 0, 400, 300}) {}
    Control* dialogControl(DialogRole role) const override
    {
        return role == DialogRole::Primary ? primary : cancel;
    }
    Control* primary = nullptr;
    Control* cancel = nullptr;
};

class InputRouterTest : public testing::Test {
protected:
    InputRouterTest()
    {
        router.setWindowFocused(true);
        for (ThemedButton* button : {&first, &second}) {
            button->setClickHandler([this](CommandEvent& event) { clicked += event.controlId; });
        }
    }
    ThemedButton& addButton(const wchar_t* id, Rect bounds)
    {
        return window.root.addControl(std::make_unique<ThemedButton>(id, bounds, id));
    }
    bool press(std::uint32_t key, KeyModifiers modifiers = {}, bool repeated = false)
    {
        return router.keyPressed({key, modifiers, repeated});
    }

    FakeWindow window{{400, 300}};
    FakeDialog& dialog = window.root.addControl(std::make_unique<FakeDialog>());
    ThemedButton& first = addButton(L"a", {10, 10, 100, 30});
    ThemedButton& second = addButton(L"b", {150, 10, 100, 30});
    InputRouter router{window.root};
    std::wstring clicked;
};

TEST_F(InputRouterTest, TabGoesRoundAndShowsWhereItIs)
{
    EXPECT_FALSE(router.showsFocus());
    EXPECT_TRUE(press(kKeyTab));
    EXPECT_EQ(router.focused(), &first);
    EXPECT_TRUE(router.showsFocus());
    press(kKeyTab, {.shift = true});
    EXPECT_EQ(router.focused(), &second);
    press(kKeyTab);
    EXPECT_EQ(router.focused(), &first);
    EXPECT_FALSE(press(kKeyTab, {.control = true}));

    MouseEvent click;
    click.position = {300, 200};
    router.mouseButton(click);
    EXPECT_EQ(router.focused(), &first);
    EXPECT_FALSE(router.showsFocus());
}

TEST_F(InputRouterTest, TabSelectsAllOfAFieldAndAClickDoesNot)
{
    auto& field =
        window.root.addControl(std::make_unique<TextInput>(L"f", Rect{0, 200, 200, 32}, L"C:\\Tamber"));
    router.focus(&field);
    EXPECT_FALSE(field.model().hasSelection());
    router.focus(nullptr);
    for (int i = 0; i < 5 && router.focused() != &field; ++i)
        router.keyPressed({kKeyTab, {}, false});
    ASSERT_EQ(router.focused(), &field);
    EXPECT_EQ(field.model().selectedText(), L"C:\\Tamber");
}

TEST_F(InputRouterTest, AControlThatCannotBeReachedHasNoKeyboard)
{
    router.focus(&first);
    first.setEnabled(false);
    EXPECT_EQ(router.focused(), nullptr);
    press(kKeyTab);
    EXPECT_EQ(router.focused(), &second);
    router.forget(second);
    EXPECT_EQ(router.focused(), nullptr);
    router.focus(&dialog);
    EXPECT_EQ(router.focused(), nullptr);
    first.setEnabled(true);
    router.focus(&first);
    router.focus(&dialog);
    EXPECT_EQ(router.focused(), &first);
}

TEST_F(InputRouterTest, EnterAndEscapeReachTheDialogWhenNobodyTakesThem)
{
    EXPECT_FALSE(press(kKeyReturn));
    dialog.primary = &second;
    dialog.cancel = &first;
    EXPECT_TRUE(press(kKeyReturn));
    EXPECT_EQ(clicked, L"b");
    EXPECT_FALSE(press(kKeyReturn, {}, true));
    EXPECT_FALSE(press(kKeyReturn, {.control = true}));
    EXPECT_TRUE(press(kKeyEscape));
    EXPECT_EQ(clicked, L"ba");
    router.focus(&first);
    EXPECT_TRUE(press(kKeyReturn));
    EXPECT_EQ(clicked, L"baa");
    second.setEnabled(false);
    router.focus(nullptr);
    EXPECT_FALSE(press(kKeyReturn));
}

TEST_F(InputRouterTest, WhoeverCapturesTheMouseHearsOfItAlone)
{
    MouseEvent event;
    event.position = {20, 20};
    EXPECT_TRUE(router.mouseButton(event));
    router.setCaptured(window.captured);
    ASSERT_EQ(router.captured(), &first);
    router.mouseMoved({160, 20});
    EXPECT_FALSE(second.isHot());
    EXPECT_FALSE(first.isPressed());
    router.mouseMoved({30, 20});
    EXPECT_TRUE(first.isPressed());
    EXPECT_FALSE(router.mouseSecondary(event));
    router.captureLost();
    EXPECT_FALSE(first.isPressed());
    event.action = MouseAction::Release;
    router.mouseButton(event);
    EXPECT_EQ(clicked, L"");
    EXPECT_TRUE(router.mouseMoved({160, 20}));
    EXPECT_TRUE(second.isHot());
    EXPECT_TRUE(router.pointerLeft());
    EXPECT_FALSE(second.isHot());
}

TEST_F(InputRouterTest, TheDeepestVisibleControlIsUnderThePointer)
{
    EXPECT_EQ(controlAt(window.root, {20, 20}), &first);
    EXPECT_EQ(controlAt(window.root, {20, 200}), &dialog);
    EXPECT_EQ(controlAt(window.root, {500, 20}), nullptr);
    first.setVisible(false);
    EXPECT_EQ(controlAt(window.root, {20, 20}), &dialog);
    EXPECT_EQ(hintedControlAt(window.root, {160, 20}), nullptr);
    window.root.setHint(L"okno");
    EXPECT_EQ(hintedControlAt(window.root, {160, 20}), &window.root);
    second.setHint(L"tlacitko");
    EXPECT_EQ(hintedControlAt(window.root, {160, 20}), &second);
}

TEST(CommandHandlersTest, TheFirstToHandleAnEventIsTheLastToSeeIt)
{
    CommandHandlers handlers;
    std::wstring seen;
    handlers.subscribe(L"", [&](CommandEvent&) { seen += L'*'; });
    const auto closing = handlers.subscribe(L"close", [&](CommandEvent& event) {
        seen += L'c';
        event.handled = true;
    });
    handlers.subscribe(L"", [&](CommandEvent&) { seen += L'!'; });
    CommandEvent close;
    close.action = L"close";
    handlers.dispatch(close);
    CommandEvent other;
    other.action = L"ok";
    handlers.dispatch(other);
    EXPECT_EQ(seen, L"*c*!");

    handlers.unsubscribe(closing);
    // A handler may add and remove handlers while it runs.
    handlers.subscribe(L"close", [&](CommandEvent&) { handlers = CommandHandlers(); });
    close.handled = false;
    handlers.dispatch(close);
    EXPECT_EQ(seen, L"*c*!*!");
}

TEST(PointerClockTest, PressesInOnePlaceCountUpToThree)
{
    ClickCounter counter;
    const struct {
        Point at;
        std::uint64_t time;
        std::int32_t clicks;
    } rows[] = {{{10, 10}, 1000, 1}, {{12, 9}, 1400, 2},  {{10, 10}, 1800, 3}, {{10, 10}, 1900, 1},
                {{10, 10}, 2401, 1}, {{30, 10}, 2500, 1}, {{30, 10}, 2600, 2}};
    for (const auto& row : rows)
        EXPECT_EQ(counter.press(row.at, row.time, 500, {4, 4}), row.clicks) << row.time;
}

TEST(PointerClockTest, FastTurnsOfTheWheelScrollFurtherUntilItRests)
{
    ScrollAcceleration style; // 35 percent a turn within 60 ms, to 6 times; 220 ms reset it
    WheelBurst wheel;
    std::uint32_t now = 0xFFFFFFB0; // soon to wrap around
    EXPECT_EQ(wheel.turn(style, now), 100);
    EXPECT_EQ(wheel.turn(style, now += 60), 135);
    EXPECT_EQ(wheel.turn(style, now += 60), 170);
    EXPECT_EQ(wheel.turn(style, now += 219), 170); // neither fast nor a rest
    EXPECT_EQ(wheel.turn(style, now += 220), 100);
    for (int i = 0; i < 20; ++i)
        EXPECT_LE(wheel.turn(style, ++now), 600);
    EXPECT_EQ(wheel.turn(style, ++now), 600);
    style = {true, 2147483647, 2147483647, 60, 220}; // a skin's nonsense
    EXPECT_EQ(wheel.turn(style, ++now), 10000);
    style.enabled = false;
    EXPECT_EQ(wheel.turn(style, ++now), 100);
}

TEST(PointerClockTest, ATooltipComesAfterTheWholeDelayOfRest)
{
    const Control control(L"c", {});
    TooltipClock clock;
    clock.pointerAt(&control, {5, 5}, 1000);
    EXPECT_EQ(clock.due(1649, 650), nullptr);
    EXPECT_EQ(clock.due(1650, 650), &control);
    clock.pointerAt(&control, {6, 5}, 1700);
    EXPECT_EQ(clock.due(1700, 650), &control);
    clock.dismiss();
    clock.pointerAt(&control, {7, 5}, 1800);
    EXPECT_EQ(clock.due(9000, 650), nullptr);
    // Away and back starts over; every move while waiting does, too.
    clock.pointerAt(nullptr, {50, 5}, 9000);
    clock.pointerAt(&control, {5, 5}, 9100);
    clock.pointerAt(&control, {6, 5}, 9600);
    EXPECT_EQ(clock.due(10200, 650), nullptr);
    EXPECT_EQ(clock.due(10250, 650), &control);
    clock.forget(control);
    EXPECT_EQ(clock.due(20000, 650), nullptr);
}

TEST(PointerClockTest, ATooltipStaysInsideTheMonitor)
{
    const Rect area{0, 0, 1000, 800};
    EXPECT_EQ(tooltipPlacement({200, 40}, {100, 100}, 20, 4, area), (Rect{100, 120, 200, 40}));
    EXPECT_EQ(tooltipPlacement({200, 40}, {950, 790}, 20, 4, area), (Rect{800, 746, 200, 40}));
    EXPECT_EQ(tooltipPlacement({200, 40}, {-500, -90}, 20, 4, area), (Rect{0, 0, 200, 40}));
    EXPECT_EQ(tooltipPlacement({2000, 900}, {10, 10}, 20, 4, area), (Rect{0, 0, 2000, 900}));
}

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
