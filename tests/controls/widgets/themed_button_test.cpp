#include "vela/controls/widgets/themed_button.h"

#include "tests/controls/widgets/widget_testing.h"
#include "tests/support/painted.h"
#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

class ThemedButtonTest : public WidgetTest {};

TEST_F(ThemedButtonTest, AButtonIsClickedByPressAndReleaseInsideOnly)
{
    auto& button =
        window.root.addControl(std::make_unique<ThemedButton>(L"ok", Rect{10, 10, 100, 34}, L"OK"));
    int clicks = 0;
    button.setClickHandler([&clicks](CommandEvent&) { ++clicks; });

    press({20, 20});
    EXPECT_EQ(window.captured, &button);
    EXPECT_EQ(window.focused, &button);
    EXPECT_EQ(button.visualState(), VisualState::Pressed);
    button.mouseDragged({-50, 10});
    EXPECT_NE(button.visualState(), VisualState::Pressed);
    button.mouseDragged({5, 5});
    EXPECT_EQ(button.visualState(), VisualState::Pressed);
    release({20, 20});
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(window.captured, nullptr);

    press({20, 20});
    release({300, 200});
    EXPECT_EQ(clicks, 1);
    EXPECT_NE(button.visualState(), VisualState::Pressed);

    press({20, 20});
    button.mouseCaptureLost();
    release({20, 20});
    EXPECT_EQ(clicks, 1);
}

TEST_F(ThemedButtonTest, HandlersAtTheWindowComeBeforeTheButtonsOwn)
{
    auto& button =
        window.root.addControl(std::make_unique<ThemedButton>(L"browse", Rect{10, 10, 100, 34}, L"Vybrat"));
    int own = 0;
    button.setClickHandler([&own](CommandEvent&) { ++own; });
    button.activate();
    window.handlesCommands = true;
    button.activate();
    EXPECT_EQ(own, 1);
    ASSERT_EQ(window.commands.size(), 2u);
    EXPECT_EQ(window.commands[0].control, &button);
    EXPECT_EQ(window.commands[0].action, L"browse");
    EXPECT_EQ(window.commands[0].text, L"Vybrat");
    button.setEnabled(false);
    button.activate();
    EXPECT_FALSE(button.keyPressed(key(kKeySpace)));
    EXPECT_EQ(window.commands.size(), 2u);
}

TEST_F(ThemedButtonTest, AHandlerMayDestroyItsButton)
{
    auto& button = window.root.addControl(std::make_unique<ThemedButton>(L"x", Rect{0, 0, 50, 30}, L"X"));
    button.setClickHandler([this, &button](CommandEvent&) { window.root.remove(button); });
    press({10, 10});
    release({10, 10});
    EXPECT_TRUE(window.root.children().empty());
}

TEST_F(ThemedButtonTest, AHandlerAtTheWindowMayDestroyIt)
{
    RemovingWindow closing{{400, 300}};
    int after = 0;
    auto& button = closing.root.addControl(std::make_unique<ThemedButton>(L"b", Rect{0, 0, 100, 28}, L"OK"));
    button.setClickHandler([&after](CommandEvent&) { ++after; });
    button.activate();
    EXPECT_TRUE(closing.root.children().empty());
    EXPECT_EQ(after, 1);
}

TEST_F(ThemedButtonTest, TheStrongestStateOfAButtonIsShown)
{
    ThemedButton button(L"b", {0, 0, 50, 30}, L"B");
    EXPECT_EQ(button.visualState(), VisualState::Normal);
    button.setHot(true);
    EXPECT_EQ(button.visualState(), VisualState::Hot);
    button.setActive(true);
    EXPECT_EQ(button.visualState(), VisualState::Active);
    button.setPressed(true);
    EXPECT_EQ(button.visualState(), VisualState::Pressed);
    button.setEnabled(false);
    EXPECT_EQ(button.visualState(), VisualState::Disabled);
    EXPECT_EQ(captionPadding(8), 2);
    EXPECT_EQ(captionPadding(34), 4);
    EXPECT_EQ(captionPadding(100), 6);
}

TEST_F(ThemedButtonTest, SaysWhatItIs)
{
    EXPECT_EQ(ThemedButton(L"b", {}, L"OK").accessibleInfo().action, AccessibleAction::Press);
}

#ifndef _WIN32 // there the product's renderer paints
TEST_F(ThemedButtonTest, ACaptionStandsInTheContentOfItsSurface)
{
    StyleSheet styles;
    for (SurfaceStyle* surface : {&styles.table<ButtonStyle>().defaultRecord().surface.normal,
                                  &styles.table<ButtonStyle>().defaultRecord().surface.pressed})
        surface->geometry.ensure().textInsets = {20, 4, 10, 2};
    styles.table<ButtonStyle>().defaultRecord().surface.pressed.geometry.ensure().textInsets.top = 6;
    auto& button =
        window.root.addControl(std::make_unique<ThemedButton>(L"ok", Rect{10, 10, 100, 34}, L"OK"));
    const Size plain = button.minimumSize();
    button.applyStyle(styles);
    const auto caption = [&button] { return testing::paintedBy<TextCall>(button).at(0); };
    EXPECT_EQ(caption().rect, (Rect{10 + 20 + 4, 14, 100 - 30 - 8, 28}));
    button.setPressed(true);
    EXPECT_EQ(caption().rect, (Rect{10 + 20 + 4, 16, 100 - 30 - 8, 26}));
    button.setMinimumSize({0, 0});
    EXPECT_EQ(button.minimumSize(), (Size{2 * 8 + 24 + 30, 16 + 6}));
    EXPECT_EQ(plain, (Size{100, 34}));
}

TEST_F(ThemedButtonTest, TheFocusRingHasTheSurfacesGlowAndIsRepaintedWithTheControl)
{
    StyleSheet styles;
    styles.table<ButtonStyle>().defaultRecord().surface.hot.glow = hexColor(0x123456);
    auto& button =
        window.root.addControl(std::make_unique<ThemedButton>(L"ok", Rect{10, 10, 100, 34}, L"OK"));
    button.applyStyle(styles);
    const auto ring = testing::paintedBy<FocusRingCall>;
    EXPECT_TRUE(ring(button).empty());
    window.focused = &button;
    window.invalidated.clear();
    button.setHot(true);
    EXPECT_EQ(window.invalidated.back(), (Rect{4, 7, 112, 40}));
    ASSERT_EQ(ring(button).size(), 1u);
    EXPECT_EQ(ring(button)[0].rect, button.bounds());
    EXPECT_EQ(ring(button)[0].color, hexColor(0x123456));
}
#endif

} // namespace
} // namespace vela
