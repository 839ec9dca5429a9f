#include "vela/controls/widgets/text_input.h"

#include "tests/controls/tree/fake_window.h"
#include "tests/support/painted.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vela {
namespace {

class FakeTextServices : public TextServices {
public:
    bool clipboardHasText() override { return clipboard.has_value(); }
    std::optional<std::wstring> clipboardText() override { return clipboard; }
    void setClipboardText(std::wstring_view text) override { clipboard = text; }
    std::uint32_t caretBlinkTime() override { return 500; }
    std::optional<TextCommand> chooseCommand(Point client, const TextCommandSet& enabled) override
    {
        menuAt = client;
        offered = enabled;
        return choice;
    }

    std::optional<std::wstring> clipboard;
    std::optional<TextCommand> choice;
    Point menuAt;
    TextCommandSet offered{};
};

class TextWindow : public FakeWindow {
public:
    using FakeWindow::FakeWindow;
    TextServices* textServices() override { return &services; }
    FakeTextServices services;
};

constexpr KeyModifiers kControl{.control = true};
constexpr KeyModifiers kShift{.shift = true};
constexpr KeyModifiers kAltGr{.control = true, .alt = true};

class TextInputTest : public ::testing::Test {
protected:
    TextInputTest()
    {
        input.applyStyle(StyleSheet());
        window.focused = &input;
    }
    bool press(std::uint32_t key, KeyModifiers modifiers = {})
    {
        return input.keyPressed({key, modifiers, false});
    }
    void click(std::int32_t x, std::int32_t clicks = 1, KeyModifiers modifiers = {})
    {
        MouseEvent event;
        event.position = {x, 16};
        event.clicks = clicks;
        event.modifiers = modifiers;
        input.mouseButton(event);
        event.action = MouseAction::Release;
        input.mouseButton(event);
    }
    std::wstring selected() const { return std::wstring(input.model().selectedText()); }

    TextWindow window{{400, 300}};
    // With the default style 180 pixels of text, 8 to a unit.
    TextInput& input =
        window.root.addControl(std::make_unique<TextInput>(L"folder", Rect{20, 40, 200, 32}, L"ahoj svete"));
};

TEST_F(TextInputTest, PropertiesByName)
{
    input.setProperty(L"text", L"abcde");
    const struct {
        const wchar_t* value;
        std::int32_t caret;
    } rows[] = {{L"99", 5}, {L"-4", 0}, {L"3", 3}, {L"nic", 2}, {L"4x", 4}, {L"", 2}};
    for (const auto& row : rows) {
        input.setProperty(L"caretIndex", L"0");
        press(kKeyRight, kShift);
        press(kKeyRight, kShift);
        input.setProperty(L"caretIndex", row.value);
        EXPECT_EQ(input.model().caret(), row.caret) << row.value;
        EXPECT_FALSE(input.model().hasSelection()) << row.value;
    }
    input.perform(TextCommand::SelectAll);
    input.setProperty(L"caretIndex", L"?");
    EXPECT_FALSE(input.model().hasSelection());
    input.setProperty(L"attachmentCount", L"3");
    input.setProperty(L"unknown", L"3");
    EXPECT_EQ(input.properties(), (PropertyList{{L"text", L"abcde"},
                                                {L"caretIndex", L"5"},
                                                {L"textScrollOffset", L"0"},
                                                {L"attachmentCount", L"0"}}));
}

TEST_F(TextInputTest, KeysEditAndRaiseChanges)
{
    EXPECT_TRUE(input.characterTyped(L"!"));
    EXPECT_EQ(input.text(), L"ahoj svete!");
    ASSERT_EQ(window.commands.size(), 1u);
    EXPECT_EQ(window.commands[0].action, L"change");
    EXPECT_EQ(window.commands[0].oldValue, L"ahoj svete");
    EXPECT_EQ(window.commands[0].newValue, L"ahoj svete!");
    EXPECT_FALSE(input.characterTyped(L"\x16"));
    press(kKeyBack, kControl);
    press(kKeyBack, kControl);
    EXPECT_EQ(input.text(), L"ahoj ");
    press(L'Z', kControl);
    press(L'Z', kControl);
    EXPECT_EQ(input.text(), L"ahoj svete!");
    press(L'Z', {.control = true, .shift = true});
    EXPECT_EQ(input.text(), L"ahoj svete");
    press(kKeyHome);
    press(kKeyRight, {.control = true, .shift = true});
    EXPECT_EQ(selected(), L"ahoj ");
    press(kKeyDelete);
    EXPECT_EQ(input.text(), L"svete");
    for (const std::uint32_t key : {kKeyTab, kKeyReturn, kKeyEscape})
        EXPECT_FALSE(press(key)) << key;
    input.setEnabled(false);
    EXPECT_FALSE(press(kKeyBack));
    EXPECT_FALSE(input.characterTyped(L"x"));
}

TEST_F(TextInputTest, ClipboardKeysInBothStyles)
{
    press(L'A', kControl);
    press(kKeyInsert, kControl);
    EXPECT_EQ(window.services.clipboard, L"ahoj svete");
    press(kKeyDelete, kShift);
    EXPECT_EQ(input.text(), L"");
    window.services.clipboard = L"C:\\Tamber\r\nC:\\Data\n";
    // On a Czech keyboard AltGr+V is a character.
    EXPECT_FALSE(press(L'V', kAltGr));
    EXPECT_EQ(input.text(), L"");
    press(kKeyInsert, kShift);
    EXPECT_EQ(input.text(), L"C:\\Tamber C:\\Data");
    window.services.clipboard.reset();
    press(L'V', kControl);
    EXPECT_EQ(input.text(), L"C:\\Tamber C:\\Data");
}

TEST_F(TextInputTest, ALockedFieldSelectsAndCopiesOnly)
{
    input.setEditLock(true);
    press(L'A', kControl);
    press(L'X', kControl);
    EXPECT_FALSE(window.services.clipboard.has_value());
    press(L'C', kControl);
    EXPECT_EQ(window.services.clipboard, L"ahoj svete");
    press(L'V', kControl);
    press(kKeyBack);
    input.characterTyped(L"x");
    EXPECT_EQ(input.text(), L"ahoj svete");
    EXPECT_TRUE(input.accessibleInfo().readOnly);
    input.setText(L"jinak");
    EXPECT_EQ(input.text(), L"jinak");
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(TextInputTest, TheMenuOffersWhatApplies)
{
    MouseEvent event;
    event.action = MouseAction::ContextMenu;
    event.position = {30, 16};
    window.services.choice = TextCommand::SelectAll;
    EXPECT_TRUE(input.mouseSecondary(event));
    EXPECT_EQ(window.services.menuAt, (Point{50, 56}));
    EXPECT_EQ(window.services.offered, (TextCommandSet{false, false, false, false, false, false, true}));
    EXPECT_EQ(selected(), L"ahoj svete");
    window.services.clipboard = L"x";
    window.services.choice = TextCommand::Erase;
    EXPECT_TRUE(input.mouseSecondary(event));
    EXPECT_EQ(window.services.offered, (TextCommandSet{false, false, true, true, true, true, false}));
    EXPECT_EQ(input.text(), L"");
}

TEST_F(TextInputTest, TheCaretBlinksAtTheSystemsRateAndTouchesOnlyItself)
{
    EXPECT_TRUE(input.wantsAnimation());
    window.invalidated.clear();
    for (int tick = 0; tick < 3; ++tick)
        EXPECT_FALSE(input.animationTick(125));
    EXPECT_TRUE(window.invalidated.empty());
    EXPECT_TRUE(input.animationTick(125));
    ASSERT_EQ(window.invalidated.size(), 1u);
    EXPECT_EQ(window.invalidated[0].width, 1);
    window.focused = nullptr;
    EXPECT_FALSE(input.wantsAnimation());
}

#ifndef _WIN32 // there the product's renderer measures and paints
TEST_F(TextInputTest, TheMouseSelects)
{
    click(10 + 8 * 4 - 3);
    EXPECT_EQ(input.model().caret(), 4);
    EXPECT_EQ(window.focused, &input);
    EXPECT_EQ(window.captured, nullptr);
    click(10 + 8 * 7, 1, kShift);
    EXPECT_EQ(selected(), L" sv");
    click(10 + 8 * 6, 2);
    EXPECT_EQ(selected(), L"svete");
    click(10 + 8 * 6, 3);
    EXPECT_EQ(selected(), L"ahoj svete");

    MouseEvent event;
    event.position = {10 + 8, 16};
    input.mouseButton(event);
    EXPECT_EQ(window.captured, &input);
    input.mouseDragged({10 + 8 * 3, 90});
    EXPECT_EQ(selected(), L"ho");
    input.mouseDragged({-500, 0});
    EXPECT_EQ(selected(), L"a");
    input.mouseCaptureLost();
    input.mouseDragged({100, 0});
    EXPECT_EQ(selected(), L"a");
}

TEST_F(TextInputTest, TheCaretStaysInSight)
{
    const auto inSight = [this] {
        const Rect caret = input.caretRect().value_or(Rect{});
        return caret.x >= 10 && caret.x + caret.width <= 191;
    };
    input.setText(std::wstring(100, L'x'));
    EXPECT_GT(input.scrollOffset(), 0);
    EXPECT_TRUE(inSight());
    for (int i = 0; i < 60; ++i) {
        press(kKeyLeft);
        ASSERT_TRUE(inSight()) << i;
    }
    input.setProperty(L"textScrollOffset", L"99999");
    EXPECT_EQ(input.scrollOffset(), 800 + 1 - 180);
    input.setProperty(L"textScrollOffset", L"x");
    EXPECT_EQ(input.scrollOffset(), 800 + 1 - 180);
    press(kKeyHome);
    EXPECT_EQ(input.scrollOffset(), 0);
    press(kKeyEnd);
    input.setBounds({20, 40, 900, 32});
    EXPECT_EQ(input.scrollOffset(), 0);
}

TEST_F(TextInputTest, TheWheelScrollsATextThatDoesNotFit)
{
    MouseEvent wheel;
    wheel.action = MouseAction::Wheel;
    wheel.position = {30, 10};
    wheel.wheelDelta = -120;
    EXPECT_FALSE(input.mouseSecondary(wheel)); // it fits
    input.setText(std::wstring(100, L'x'));
    input.setScrollOffset(0);
    wheel.time = 1000;
    EXPECT_TRUE(input.mouseSecondary(wheel));
    EXPECT_EQ(input.scrollOffset(), 24);
    wheel.time = 1010; // the record accelerates by 35 percent
    EXPECT_TRUE(input.mouseSecondary(wheel));
    EXPECT_EQ(input.scrollOffset(), 24 + 32);
    wheel.wheelDelta = 32767;
    EXPECT_TRUE(input.mouseSecondary(wheel));
    EXPECT_EQ(input.scrollOffset(), 0);
    wheel.position = {30, 32};
    EXPECT_FALSE(input.mouseSecondary(wheel)); // beside the field
}

TEST_F(TextInputTest, TheTextKeepsInsideTheInsetsOfItsSurface)
{
    const Size plain = input.minimumSize();
    const Rect before = input.caretRect().value_or(Rect{});
    StyleSheet styles;
    styles.table<TextInputStyle>().defaultRecord().surface.geometry.ensure().textInsets = {30, 8, 5, 2};
    input.applyStyle(styles);
    EXPECT_EQ(input.contentBounds(), (Rect{30, 8, 165, 22}));
    EXPECT_EQ(*input.caretRect(), movedBy(before, {30, 3}));
    input.setMinimumSize({0, 0});
    EXPECT_GE(input.minimumSize().height, before.height + 10);
    EXPECT_EQ(plain, (Size{200, 32}));
}

TEST_F(TextInputTest, ChipsStandBeforeTheTextAndCanBeRemoved)
{
    const std::int32_t before = input.caretRect()->x;
    input.setText(L"");
    input.setAttachments({{L"a1", L"jedna"}, {L"a2", L"dve"}});
    EXPECT_EQ(input.properties()[3].second, L"2");
    EXPECT_GT(input.caretRect()->x, before);
    // From the right edge of the first chip inwards lies its remove button.
    const std::int32_t chipEnd = 10 + 8 + 12 + 4 + 5 * 8 + 8 + 16;
    click(chipEnd - 10);
    ASSERT_EQ(input.attachments().size(), 1u);
    EXPECT_EQ(input.attachments()[0].id, L"a2");
    EXPECT_EQ(window.commands.back().action, L"attachment-remove");
    EXPECT_EQ(window.commands.back().text, L"a1");
}

TEST_F(TextInputTest, PaintingShowsStateSelectionAndCaret)
{
    const auto carets = [this] { return testing::paintedBy<ShapeFillCall>(input); };
    const auto selections = [this] { return testing::paintedBy<SurfaceCall>(input); };
    const auto texts = [this] { return testing::paintedBy<UnclippedLineCall>(input); };
    const TextInputStyle style;
    ASSERT_EQ(carets().size(), 1u);
    EXPECT_EQ(carets()[0].rect, (Rect{30 + 80, 48, 1, 16}));
    EXPECT_EQ(texts()[0].rect.x, 30);
    press(kKeyLeft, kShift);
    EXPECT_EQ(testing::paintedBy<ControlSurfaceCall>(input).size(), 1u);
    ASSERT_EQ(selections().size(), 1u);
    EXPECT_EQ(selections()[0].rect, (Rect{30 + 72, 46, 8, 20}));
    // A selection in the text's own colour would hide it: there the text takes the field's.
    StyleSheet inverted;
    auto& record = inverted.table<TextInputStyle>().defaultRecord();
    record.selection.fill = record.text.color = hexColor(0xFFFFFF);
    record.focusedSurface.fill = hexColor(0x000000);
    input.applyStyle(inverted);
    ASSERT_EQ(texts().size(), 2u);
    EXPECT_EQ(texts()[0].color, hexColor(0xFFFFFF));
    EXPECT_EQ(texts()[1].color, hexColor(0x000000));
    input.applyStyle(StyleSheet());
    window.focused = nullptr;
    EXPECT_TRUE(carets().empty());
    input.setEnabled(false);
    EXPECT_EQ(texts()[0].color, style.text.disabledColor);
    input.setText(L"");
    input.setPlaceholder(L"Slozka");
    EXPECT_EQ(testing::paintedBy<TextCall>(input)[0].text, L"Slozka");
}

// The selection has one colour, what is before and behind it the other, and neither is drawn twice.
TEST_F(TextInputTest, TheTextIsDrawnOnceInEachOfItsColours)
{
    press(kKeyHome);
    press(kKeyRight);
    press(kKeyRight, kShift);
    press(kKeyRight, kShift);
    const auto clips = testing::paintedBy<ClipCall>(input);
    ASSERT_EQ(clips.size(), 6u); // the field's, two inside it, and their ends
    EXPECT_EQ(clips[1].rects, (std::vector<Rect>{{30, 40, 8, 32}, {54, 40, 156, 32}}));
    EXPECT_EQ(clips[3].rects, (std::vector<Rect>{{38, 46, 16, 20}}));
}

// Each further than the one before; under sanitizers no sum of their places overflows.
TEST_F(TextInputTest, ThereMayBeAnyNumberOfChips)
{
    StyleSheet styles;
    auto& record = styles.table<TextInputStyle>().defaultRecord();
    record.attachmentGap = record.attachmentRemoveExtent = record.paddingX = INT32_MAX;
    input.applyStyle(styles);
    input.setAttachments(std::vector<TextAttachment>(3000, {L"a", L"priloha"}));
    click(100);
    press(kKeyEnd);
    EXPECT_TRUE(input.caretRect());
    EXPECT_FALSE(testing::paintedBy<ControlSurfaceCall>(input).empty());
}
#endif

} // namespace
} // namespace vela
