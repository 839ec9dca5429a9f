#include "vela/controls/widgets/text_input.h"

#include "tests/support/test_window_win32.h"
#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::Desktop;
using testing::drainMessages;

class TextInputWindowTest : public ::testing::Test {
protected:
    TextInputWindowTest()
    {
        window.setCustomFrame(true);
        EXPECT_TRUE(window.create(::GetModuleHandleW(nullptr), L"", {400, 100}, {WS_POPUP, 0}));
        input = &window.root().addControl(
            std::make_unique<TextInput>(L"folder", Rect{20, 30, 360, 32}, L"C:\\Program Files\\Tamber"));
        window.applyStyles(std::make_shared<StyleSheet>(buildStyleSheet(builtInSkin())));
        ::ShowWindow(window.handle(), SW_SHOWNORMAL);
        ::SetForegroundWindow(window.handle());
        drainMessages();
    }
    void clickAt(Point point, int times = 1)
    {
        Desktop::movePointer(window.handle(), point);
        for (int i = 0; i < times; ++i) {
            Desktop::button(MOUSEEVENTF_LEFTDOWN);
            Desktop::button(MOUSEEVENTF_LEFTUP);
        }
        drainMessages();
    }
    void chord(WORD modifier, WORD key)
    {
        Desktop::keyHalf(modifier, true);
        Desktop::key(key);
        Desktop::keyHalf(modifier, false);
        drainMessages();
    }

    testing::TestWindow window;
    TextInput* input = nullptr;
};

TEST_F(TextInputWindowTest, TypingSelectingAndPastingWithRealInput)
{
    clickAt({60, 46}, 3);
    ASSERT_EQ(window.focusedControl(), input);
    EXPECT_EQ(input->model().selectedText(), L"C:\\Program Files\\Tamber");
    chord(VK_CONTROL, 'C');
    Desktop::key('D');
    Desktop::key('1');
    drainMessages();
    EXPECT_EQ(input->text(), L"d1");
    chord(VK_CONTROL, 'V');
    EXPECT_EQ(input->text(), L"d1C:\\Program Files\\Tamber");
    chord(VK_SHIFT, VK_HOME);
    chord(VK_SHIFT, VK_DELETE);
    EXPECT_EQ(input->text(), L"");
    chord(VK_SHIFT, VK_INSERT);
    chord(VK_CONTROL, 'Z');
    EXPECT_EQ(input->text(), L"");
}

TEST_F(TextInputWindowTest, DraggingSelects)
{
    Desktop::movePointer(window.handle(), {60, 46});
    Desktop::button(MOUSEEVENTF_LEFTDOWN);
    drainMessages();
    Desktop::movePointer(window.handle(), {390, 90});
    drainMessages();
    EXPECT_TRUE(input->model().hasSelection());
    EXPECT_EQ(input->model().selectionEnd(), input->text().size());
    Desktop::button(MOUSEEVENTF_LEFTUP);
    drainMessages();
    Desktop::movePointer(window.handle(), {30, 46});
    drainMessages();
    EXPECT_EQ(input->model().selectionEnd(), input->text().size());
}

// Where on a chip its cross stands is the style's business: the pointer looks for it from the left.
TEST_F(TextInputWindowTest, ChipsAreRemovedByAClickOnTheirCrossAlone)
{
    input->setAttachments({{L"a1", L"jedna.txt"}, {L"a2", L"dve.txt"}});
    std::vector<std::wstring> removed;
    window.subscribe(L"attachment-remove", [&](CommandEvent& event) { removed.push_back(event.text); });
    std::int32_t x = input->bounds().x + 1;
    for (; removed.empty() && x < 200; x += 3)
        clickAt({x, 46});
    ASSERT_EQ(removed, (std::vector<std::wstring>{L"a1"}));
    EXPECT_GT(x, 80) << "the chip's name is no cross";
    EXPECT_EQ(input->attachments(), (std::vector<TextAttachment>{{L"a2", L"dve.txt"}}));
    EXPECT_EQ(input->text(), L"C:\\Program Files\\Tamber");
}

TEST_F(TextInputWindowTest, BackspaceBeforeTheTextRemovesTheLastChip)
{
    input->setAttachments({{L"a1", L"jedna.txt"}, {L"a2", L"dve.txt"}});
    std::vector<std::wstring> removed;
    window.subscribe(L"attachment-remove", [&](CommandEvent& event) { removed.push_back(event.text); });
    window.focusControl(input);
    const auto press = [](WORD key) {
        Desktop::key(key);
        drainMessages();
    };
    press(VK_HOME);
    chord(VK_SHIFT, VK_RIGHT);
    press(VK_BACK); // what is selected goes first
    EXPECT_TRUE(removed.empty());
    EXPECT_EQ(input->text(), L":\\Program Files\\Tamber");
    press(VK_BACK);
    EXPECT_EQ(removed, (std::vector<std::wstring>{L"a2"}));
    press(VK_BACK);
    press(VK_BACK);
    EXPECT_EQ(removed, (std::vector<std::wstring>{L"a2", L"a1"}));
    EXPECT_EQ(input->text(), L":\\Program Files\\Tamber");
}

TEST_F(TextInputWindowTest, HalvesOfACharacterArriveAsOne)
{
    clickAt({60, 46}, 3);
    ::SendMessageW(window.handle(), WM_CHAR, 0xD83D, 0);
    EXPECT_EQ(input->text(), L"C:\\Program Files\\Tamber");
    ::SendMessageW(window.handle(), WM_CHAR, 0xDE00, 0);
    EXPECT_EQ(input->text(), L"\U0001F600");
}

} // namespace
} // namespace vela
