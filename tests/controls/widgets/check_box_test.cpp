#include "vela/controls/widgets/check_box.h"

#include "tests/controls/widgets/widget_testing.h"
#include "tests/support/painted.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

class CheckBoxTest : public WidgetTest {};

TEST_F(CheckBoxTest, ACheckBoxTogglesByMouseAndKeysAndTellsBothValues)
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

TEST_F(CheckBoxTest, AHandlerAtTheWindowMayDestroyIt)
{
    RemovingWindow closing{{400, 300}};
    int after = 0;
    auto& box = closing.root.addControl(std::make_unique<CheckBox>(L"c", Rect{0, 0, 100, 28}, L"Volba"));
    box.setChangeHandler([&after](const CommandEvent&) { ++after; });
    box.activate();
    EXPECT_TRUE(closing.root.children().empty());
    EXPECT_EQ(after, 1);
}

TEST_F(CheckBoxTest, PropertiesByNameTakeOnlyWhatTheyKnow)
{
    CheckBox box(L"c", {0, 0, 100, 28}, L"x");
    const struct {
        const wchar_t* name;
        const wchar_t* written;
        const wchar_t* read;
    } rows[] = {
        {L"checked", L"yes", L"true"}, {L"checked", L"FALSE", L"true"}, {L"checked", L"0", L"false"},
        {L"checked", L"1", L"true"},   {L"value", L"0", L"true"},
    };
    for (const auto& row : rows) {
        box.setProperty(row.name, row.written);
        EXPECT_EQ(box.properties().front().second, row.read);
    }
}

TEST_F(CheckBoxTest, SaysWhatItIs)
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
}

#ifndef _WIN32 // there the product's renderer paints
TEST_F(CheckBoxTest, TheFocusRingGoesAroundBoxAndCaption)
{
    auto& check = window.root.addControl(std::make_unique<CheckBox>(L"c", Rect{10, 60, 300, 28}, L"Volba"));
    const auto ring = testing::paintedBy<FocusRingCall>;
    // With air on both sides, not around the empty rest of the row.
    window.focused = &check;
    EXPECT_EQ(ring(check)[0].rect, (Rect{8, 60, 2 + 28 + 5 * 8 + 2, 28}));
}
#endif

} // namespace
} // namespace vela
