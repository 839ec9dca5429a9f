#include "vela/controls/widgets/text_edit_model.h"

#include "vela/text.h"
#include "vela/text_clusters.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// Older steps fall away: nobody undoes this far in a one-line field, and a held key must not eat memory.
constexpr std::size_t kHistoryLimit = 500;

constexpr bool isControl(wchar_t c) noexcept { return static_cast<std::uint32_t>(c) < 0x20 || c == 0x7F; }

// One blank for each run of line breaks and other controls inside the text, none at its ends.
std::wstring joinedToOneLine(std::wstring_view text)
{
    while (!text.empty() && isControl(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isControl(text.back()))
        text.remove_suffix(1);
    std::wstring line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isControl(text[i]))
            line.push_back(text[i]);
        else if (!isControl(text[i - 1]))
            line.push_back(L' ');
    }
    return line;
}

} // namespace

std::wstring_view TextEditModel::selectedText() const noexcept
{
    return std::wstring_view(text_).substr(selectionStart(), selectionEnd() - selectionStart());
}

void TextEditModel::setText(std::wstring_view text)
{
    text_ = joinedToOneLine(text);
    history_.clear();
    applied_ = 0;
    select(text_.size(), text_.size());
}

void TextEditModel::setCaret(std::int64_t index) noexcept
{
    const auto clamped =
        static_cast<std::size_t>(std::clamp<std::int64_t>(index, 0, static_cast<std::int64_t>(text_.size())));
    moveCaretTo(clamped, false);
}

std::size_t TextEditModel::target(CaretMove move) const noexcept
{
    switch (move) {
    case CaretMove::Left: return previousCaretStop(text_, caret_);
    case CaretMove::Right: return nextCaretStop(text_, caret_);
    case CaretMove::WordLeft: return previousWordStart(text_, caret_);
    case CaretMove::WordRight: return nextWordStart(text_, caret_);
    case CaretMove::LineStart: return 0;
    case CaretMove::LineEnd: return text_.size();
    }
    return caret_;
}

void TextEditModel::moveCaret(CaretMove move, bool extendSelection) noexcept
{
    // Without Shift an arrow leaves a selection at the end it points to.
    const bool collapses = hasSelection() && !extendSelection;
    if (collapses && move == CaretMove::Left)
        return moveCaretTo(selectionStart(), false);
    if (collapses && move == CaretMove::Right)
        return moveCaretTo(selectionEnd(), false);
    moveCaretTo(target(move), extendSelection);
}

void TextEditModel::moveCaretTo(std::size_t index, bool extendSelection) noexcept
{
    const std::size_t caret = nearestCaretStop(text_, index);
    select(caret, extendSelection ? anchor_ : caret);
}

void TextEditModel::selectAll() noexcept { select(text_.size(), 0); }

void TextEditModel::selectWordAt(std::size_t index) noexcept
{
    const auto [first, last] = wordAround(text_, index);
    select(last, first);
}

void TextEditModel::extendByWords(std::size_t origin, std::size_t index) noexcept
{
    const auto from = wordAround(text_, origin);
    const auto to = wordAround(text_, index);
    if (index < from.first)
        select(to.first, from.second);
    else
        select(std::max(to.second, from.second), from.first);
}

void TextEditModel::select(std::size_t caret, std::size_t anchor) noexcept
{
    caret_ = caret;
    anchor_ = anchor;
    runBroken_ = true;
}

bool TextEditModel::type(std::wstring_view text)
{
    // A key that gives no character leaves the selection alone; and a run of typing never begins empty.
    const std::wstring typed = joinedToOneLine(text);
    return !typed.empty() && replace(selectionStart(), selectionEnd(), typed, EditKind::Typing);
}

bool TextEditModel::paste(std::wstring_view text)
{
    return replace(selectionStart(), selectionEnd(), joinedToOneLine(text), EditKind::Other);
}

bool TextEditModel::eraseSelection()
{
    return replace(selectionStart(), selectionEnd(), {}, EditKind::Other);
}

bool TextEditModel::erase(Erase what)
{
    if (hasSelection())
        return eraseSelection();
    switch (what) {
    case Erase::Left: return replace(previousCaretStop(text_, caret_), caret_, {}, EditKind::EraseLeft);
    case Erase::Right: return replace(caret_, nextCaretStop(text_, caret_), {}, EditKind::EraseRight);
    case Erase::WordLeft: return replace(previousWordStart(text_, caret_), caret_, {}, EditKind::Other);
    case Erase::WordRight: return replace(caret_, nextWordStart(text_, caret_), {}, EditKind::Other);
    }
    return false;
}

bool TextEditModel::replace(std::size_t first, std::size_t last, std::wstring_view with, EditKind kind)
{
    if (locked_ || (first == last && with.empty()))
        return false;
    Edit edit{kind, first, text_.substr(first, last - first), std::wstring(with), caret_, anchor_};
    text_.replace(first, last - first, with);
    const bool joins = joinsPrevious(edit);
    // Where the inserted text ends with half a cluster of what follows it, the caret steps behind the whole.
    const std::size_t end = first + with.size();
    const std::size_t stop = nearestCaretStop(text_, end) == end ? end : nextCaretStop(text_, end);
    select(stop, stop);
    runBroken_ = false;
    if (joins) {
        Edit& run = history_[applied_ - 1];
        run.position = std::min(run.position, edit.position);
        run.inserted += edit.inserted;
        run.removed = kind == EditKind::EraseLeft ? edit.removed + run.removed : run.removed + edit.removed;
    } else {
        remember(std::move(edit));
    }
    return true;
}

// A run of typing is undone at once, but no further back than the last word; so is a run of one erasing key.
bool TextEditModel::joinsPrevious(const Edit& edit) const noexcept
{
    if (runBroken_ || edit.kind == EditKind::Other || applied_ == 0 || applied_ != history_.size())
        return false;
    const Edit& run = history_[applied_ - 1];
    if (run.kind != edit.kind)
        return false;
    if (edit.kind == EditKind::Typing) {
        const bool startsWord = isSpace(run.inserted.back()) && !isSpace(edit.inserted.front());
        return edit.removed.empty() && edit.position == run.position + run.inserted.size() && !startsWord;
    }
    return edit.kind == EditKind::EraseLeft ? edit.position + edit.removed.size() == run.position
                                            : edit.position == run.position;
}

void TextEditModel::remember(Edit edit)
{
    history_.resize(applied_);
    if (history_.size() == kHistoryLimit)
        history_.erase(history_.begin());
    history_.push_back(std::move(edit));
    applied_ = history_.size();
}

bool TextEditModel::undo()
{
    if (!canUndo())
        return false;
    const Edit& edit = history_[--applied_];
    text_.replace(edit.position, edit.inserted.size(), edit.removed);
    select(edit.caretBefore, edit.anchorBefore);
    return true;
}

bool TextEditModel::redo()
{
    if (!canRedo())
        return false;
    const Edit& edit = history_[applied_++];
    text_.replace(edit.position, edit.removed.size(), edit.inserted);
    const std::size_t end = nearestCaretStop(text_, edit.position + edit.inserted.size());
    select(end, end);
    return true;
}

std::int32_t scrollToCaret(std::int32_t offset, std::int32_t caretX, std::int32_t textWidth,
                           std::int32_t fieldWidth, std::int32_t margin) noexcept
{
    // In 64 bits: a text can be wider than the numbers that a caller adds to it.
    const std::int64_t width = std::max(fieldWidth, 0);
    const std::int64_t keep = std::clamp<std::int64_t>(margin, 0, width / 2);
    const std::int64_t caret = caretX;
    std::int64_t result = offset;
    // The caret is one pixel wide even where there is no room for a margin.
    result = std::max(result, caret + std::max<std::int64_t>(keep, 1) - width);
    result = std::min(result, caret - keep);
    // The caret's own pixel stays visible behind the last character.
    const std::int64_t furthest = std::max<std::int64_t>(std::int64_t{textWidth} + 1 - width, 0);
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(result, 0, furthest));
}

} // namespace vela
