#include "vela/controls/widgets/text_edit_model.h"

#include <gtest/gtest.h>

#include <random>

namespace vela {
namespace {

TextEditModel modelWith(std::wstring_view text)
{
    TextEditModel model;
    model.setText(text);
    return model;
}

void typeEach(TextEditModel& model, std::wstring_view text)
{
    for (const wchar_t c : text)
        model.type({&c, 1});
}

TEST(TextEditModel, MovesSelectsAndReplaces)
{
    TextEditModel model = modelWith(L"one two");
    EXPECT_EQ(model.caret(), 7);
    model.moveCaret(CaretMove::WordLeft, true);
    EXPECT_EQ(model.selectedText(), L"two");
    model.moveCaret(CaretMove::Left, false);
    EXPECT_EQ(model.caret(), 4);
    EXPECT_FALSE(model.hasSelection());
    model.selectWordAt(1);
    EXPECT_TRUE(model.type(L"1"));
    EXPECT_EQ(model.text(), L"1 two");
    EXPECT_TRUE(model.erase(Erase::WordRight));
    EXPECT_EQ(model.text(), L"1two");
    EXPECT_FALSE(modelWith(L"x").erase(Erase::Right));
    model.setCaret(99);
    EXPECT_EQ(model.caret(), 4);
    model.setCaret(-4);
    EXPECT_EQ(model.caret(), 0);
}

TEST(TextEditModel, DraggingAfterADoubleClickKeepsWholeWords)
{
    TextEditModel model = modelWith(L"one two three");
    model.selectWordAt(5);
    model.extendByWords(5, 9);
    EXPECT_EQ(model.selectedText(), L"two three");
    model.extendByWords(5, 1);
    EXPECT_EQ(model.selectedText(), L"one two");
    EXPECT_EQ(model.caret(), 0);
}

TEST(TextEditModel, SeveralPastedLinesBecomeOne)
{
    TextEditModel model;
    EXPECT_TRUE(model.paste(L"\r\nC:\\a\r\n\tb\r\n"));
    EXPECT_EQ(model.text(), L"C:\\a b");
    EXPECT_FALSE(model.paste(L"\r\n"));
}

TEST(TextEditModel, UndoTakesBackRunsWordByWordAndRedoBringsThemBack)
{
    TextEditModel model;
    typeEach(model, L"one two");
    model.erase(Erase::Left);
    model.erase(Erase::Left);
    const wchar_t* const back[] = {L"one two", L"one ", L""};
    for (const auto* text : back) {
        EXPECT_TRUE(model.undo());
        EXPECT_EQ(model.text(), text);
    }
    EXPECT_FALSE(model.undo());
    const wchar_t* const forth[] = {L"one ", L"one two", L"one t"};
    for (const auto* text : forth) {
        EXPECT_TRUE(model.redo());
        EXPECT_EQ(model.text(), text);
    }
    EXPECT_FALSE(model.redo());
    model.undo();
    model.type(L"!"); // a new edit ends what could be redone
    EXPECT_FALSE(model.canRedo());

    TextEditModel moved = modelWith(L"ab");
    moved.type(L"c");
    moved.moveCaret(CaretMove::LineStart, false);
    moved.moveCaret(CaretMove::LineEnd, false);
    moved.type(L"d");
    moved.undo();
    EXPECT_EQ(moved.text(), L"abc"); // the caret's trip ended the run
}

TEST(TextEditModel, TheLockRefusesTheUserAndNotTheProgram)
{
    TextEditModel model = modelWith(L"path");
    model.type(L"!");
    model.setLocked(true);
    model.selectAll();
    EXPECT_FALSE(model.type(L"x"));
    EXPECT_FALSE(model.eraseSelection());
    EXPECT_FALSE(model.undo());
    EXPECT_EQ(model.selectedText(), L"path!");
    model.setText(L"other");
    EXPECT_EQ(model.text(), L"other");
}

TEST(TextEditModel, RandomEditingCanAlwaysBeUndoneToTheStart)
{
    constexpr std::wstring_view kPieces[] = {L"a",      L" ",     L"\\", L"c\u030C", L"\xD83D\xDE00",
                                             L"\u0301", L"\u200D"};
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        TextEditModel model = modelWith(L"start");
        for (int step = 0; step < 60; ++step) {
            const auto pick = [&random](unsigned n) { return static_cast<unsigned>(random() % n); };
            switch (pick(5)) {
            case 0: model.type(kPieces[pick(7)]); break;
            case 1: model.erase(static_cast<Erase>(pick(4))); break;
            case 2: model.moveCaret(static_cast<CaretMove>(pick(6)), pick(2) == 1); break;
            case 3: model.undo(); break;
            default: model.redo(); break;
            }
            ASSERT_LE(static_cast<std::size_t>(model.caret()), model.text().size());
            ASSERT_LE(static_cast<std::size_t>(model.anchor()), model.text().size());
        }
        const std::wstring end = model.text();
        while (model.redo()) {
        }
        const std::wstring last = model.text();
        while (model.undo()) {
        }
        EXPECT_EQ(model.text(), L"start");
        while (model.redo()) {
        }
        EXPECT_EQ(model.text(), last);
    }
}

TEST(TextEditModel, ScrollKeepsTheCaretInViewWithAMargin)
{
    const struct {
        std::int32_t offset, caretX, textWidth, fieldWidth, expected;
    } rows[] = {
        {0, 50, 60, 100, 0},     // fits
        {0, 150, 300, 100, 60},  // right of the view: margin 10 stays free
        {60, 150, 300, 100, 60}, // already right: no movement
        {60, 65, 300, 100, 55},  // left of the view
        {60, 0, 300, 100, 0},
        {250, 300, 300, 100, 201}, // the end, with room for the caret
        {250, 40, 50, 100, 0},     // text became shorter
        {0, 2147483647, 2147483647, 1, 2147483647},
    };
    for (const auto& row : rows)
        EXPECT_EQ(scrollToCaret(row.offset, row.caretX, row.textWidth, row.fieldWidth, 10), row.expected);
}

} // namespace
} // namespace vela
