#include "tests/controls/tree/fake_window.h"
#include "tests/support/painted.h"
#include "vela/controls/widgets/check_box.h"
#include "vela/controls/widgets/label.h"
#include "vela/controls/widgets/progress_bar.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

MouseEvent mouse(MouseAction action, Point at)
{
    MouseEvent event;
    event.action = action;
    event.position = at;
    return event;
}

KeyEvent key(std::uint32_t code, KeyModifiers modifiers = {}, bool repeated = false)
{
    return {code, modifiers, repeated};
}

class SimpleControlsTest : public ::testing::Test {
protected:
    void press(Point at) { window.root.mouseButton(mouse(MouseAction::Press, at)); }
    void release(Point at) { window.root.mouseButton(mouse(MouseAction::Release, at)); }

    FakeWindow window{{400, 300}};
};

TEST_F(SimpleControlsTest, AButtonIsClickedByPressAndReleaseInsideOnly)
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

TEST_F(SimpleControlsTest, HandlersAtTheWindowComeBeforeTheButtonsOwn)
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

TEST_F(SimpleControlsTest, AHandlerMayDestroyItsButton)
{
    auto& button = window.root.addControl(std::make_unique<ThemedButton>(L"x", Rect{0, 0, 50, 30}, L"X"));
    button.setClickHandler([this, &button](CommandEvent&) { window.root.remove(button); });
    press({10, 10});
    release({10, 10});
    EXPECT_TRUE(window.root.children().empty());
}

TEST_F(SimpleControlsTest, AHandlerAtTheWindowMayDestroyWhatItHearsOf)
{
    struct ClosingWindow : public FakeWindow {
        using FakeWindow::FakeWindow;
        void dispatchCommand(CommandEvent& event) override { root.remove(*event.control); }
    } closing{{400, 300}};
    int after = 0;
    auto& box = closing.root.addControl(std::make_unique<CheckBox>(L"c", Rect{0, 0, 100, 28}, L"Volba"));
    box.setChangeHandler([&after](const CommandEvent&) { ++after; });
    box.activate();
    auto& button = closing.root.addControl(std::make_unique<ThemedButton>(L"b", Rect{0, 0, 100, 28}, L"OK"));
    button.setClickHandler([&after](CommandEvent&) { ++after; });
    button.activate();
    EXPECT_TRUE(closing.root.children().empty());
    EXPECT_EQ(after, 2);
}

TEST_F(SimpleControlsTest, TheStrongestStateOfAButtonIsShown)
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

TEST_F(SimpleControlsTest, ACheckBoxTogglesByMouseAndKeysAndTellsBothValues)
{
    auto& box = window.root.addControl(std::make_unique<CheckBox>(L"c", Rect{0, 0, 200, 28}, L"Volba"));
    std::vector<std::wstring> heard;
    box.setChangeHandler(
        [&heard](const CommandEvent& e) { heard.push_back(e.oldValue + L">" + e.newValue); });
    press({150, 10});
    release({150, 10});
    EXPECT_TRUE(box.isChecked());
    EXPECT_TRUE(box.keyPressed(key(kKeySpace)));
    EXPECT_TRUE(box.keyPressed(key(kKeySpace, {}, true))); // held: taken, but no flicker
    EXPECT_TRUE(box.keyPressed(key(kKeyReturn)));
    EXPECT_FALSE(box.keyPressed(key(kKeySpace, {true, false, false})));
    EXPECT_FALSE(box.keyPressed(key(kKeyTab)));
    EXPECT_EQ(heard, (std::vector<std::wstring>{L"false>true", L"true>false", L"false>true"}));
    EXPECT_EQ(window.commands.back().action, L"change");
    EXPECT_TRUE(window.commands.back().newChecked && !window.commands.back().oldChecked);
    box.setEnabled(false);
    EXPECT_FALSE(box.keyPressed(key(kKeySpace)));
    press({10, 10});
    release({10, 10});
    EXPECT_TRUE(box.isChecked());
}

TEST_F(SimpleControlsTest, PropertiesByNameTakeOnlyWhatTheyKnow)
{
    CheckBox box(L"c", {0, 0, 100, 28}, L"x");
    ProgressBar bar(L"p", {0, 0, 100, 20});
    const struct {
        Control& control;
        const wchar_t* name;
        const wchar_t* written;
        const wchar_t* read;
    } rows[] = {
        {box, L"checked", L"yes", L"true"}, {box, L"checked", L"FALSE", L"true"},
        {box, L"checked", L"0", L"false"},  {box, L"checked", L"1", L"true"},
        {box, L"value", L"0", L"true"},     {bar, L"value", L"150", L"100"},
        {bar, L"value", L"-3", L"0"},       {bar, L"value", L"7x", L"7"},
        {bar, L"value", L"abc", L"7"},      {bar, L"value", L"", L"7"},
        {bar, L"checked", L"1", L"7"},
    };
    for (const auto& row : rows) {
        row.control.setProperty(row.name, row.written);
        EXPECT_EQ(row.control.properties().front().second, row.read);
    }
    EXPECT_EQ(bar.text(), L"7%");
    EXPECT_FLOAT_EQ(progressEnd(492, 8), 39.36F);
}

TEST_F(SimpleControlsTest, OnlyRealChangesRepaint)
{
    auto& label = window.root.addControl(std::make_unique<Label>(L"l", Rect{0, 0, 100, 20}, L"a"));
    auto& bar = window.root.addControl(std::make_unique<ProgressBar>(L"p", Rect{0, 30, 100, 20}));
    window.invalidated.clear();
    label.setText(L"a");
    bar.setValue(-5);
    EXPECT_TRUE(window.invalidated.empty());
    label.setText(L"b");
    bar.setValue(5);
    EXPECT_EQ(window.invalidated, (std::vector<Rect>{{0, 0, 100, 20}, {0, 30, 100, 20}}));
}

#ifndef _WIN32 // there the product's renderer paints
TEST_F(SimpleControlsTest, ACaptionStandsInTheContentOfItsSurface)
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

TEST_F(SimpleControlsTest, TheFocusRingHasTheSurfacesGlowAndIsRepaintedWithTheControl)
{
    StyleSheet styles;
    styles.table<ButtonStyle>().defaultRecord().surface.hot.glow = hexColor(0x123456);
    auto& button =
        window.root.addControl(std::make_unique<ThemedButton>(L"ok", Rect{10, 10, 100, 34}, L"OK"));
    auto& check = window.root.addControl(std::make_unique<CheckBox>(L"c", Rect{10, 60, 300, 28}, L"Volba"));
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
    // Around box and caption with air on both sides, not around the empty rest of the row.
    window.focused = &check;
    EXPECT_EQ(ring(check)[0].rect, (Rect{8, 60, 2 + 28 + 5 * 8 + 2, 28}));
}

TEST_F(SimpleControlsTest, ABarTooLowForItsInsetsStillShowsATrack)
{
    StyleSheet styles;
    styles.table<ProgressBarStyle>().defaultRecord().insetY = 11;
    const auto trackHeight = [&](std::int32_t height) {
        ProgressBar bar(L"p", {0, 0, 200, height});
        bar.applyStyle(styles);
        return testing::paintedBy<ProgressFillCall>(bar).at(0).track.height;
    };
    EXPECT_EQ(trackHeight(32), 10);
    EXPECT_EQ(trackHeight(28), 6);
    EXPECT_EQ(trackHeight(18), 6);
    EXPECT_EQ(trackHeight(4), 4);
}
#endif

TEST_F(SimpleControlsTest, ControlsSayWhatTheyAre)
{
    auto& box = window.root.addControl(std::make_unique<CheckBox>(L"c", Rect{5, 6, 100, 28}, L"Volba"));
    box.setHint(L"Napoveda");
    box.setChecked(true);
    window.focused = &box;
    AccessibleInfo expected;
    expected.role = AccessibleRole::CheckBox;
    expected.name = L"Volba";
    expected.description = L"Napoveda";
    expected.bounds = {5, 6, 100, 28};
    expected.action = AccessibleAction::Toggle;
    expected.focusable = expected.focused = expected.checked = true;
    EXPECT_EQ(box.accessibleInfo(), expected);
    ProgressBar bar(L"p", {0, 0, 10, 10});
    bar.setValue(42);
    EXPECT_EQ(bar.accessibleInfo().value, L"42%");
    EXPECT_EQ(ThemedButton(L"b", {}, L"OK").accessibleInfo().action, AccessibleAction::Press);
}

} // namespace
} // namespace vela
