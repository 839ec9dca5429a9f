#include "vela/controls/tree/input_router.h"

#include "tests/controls/tree/fake_window.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/themed_button.h"

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

} // namespace
} // namespace vela
