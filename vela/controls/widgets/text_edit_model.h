// What a single-line text field knows: its text, caret, selection and history. A pure value with no screen:
// the control measures, draws and talks to the clipboard, this decides what an edit does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

enum class CaretMove { Left, Right, WordLeft, WordRight, LineStart, LineEnd };
enum class Erase { Left, Right, WordLeft, WordRight };

class TextEditModel {
public:
    const std::wstring& text() const noexcept { return text_; }
    std::int32_t caret() const noexcept { return static_cast<std::int32_t>(caret_); }
    std::int32_t anchor() const noexcept { return static_cast<std::int32_t>(anchor_); }
    bool hasSelection() const noexcept { return caret_ != anchor_; }
    std::size_t selectionStart() const noexcept { return caret_ < anchor_ ? caret_ : anchor_; }
    std::size_t selectionEnd() const noexcept { return caret_ < anchor_ ? anchor_ : caret_; }
    std::wstring_view selectedText() const noexcept;

    // While locked, edits by the user are refused; moving, selecting and copying are not.
    bool locked() const noexcept { return locked_; }
    void setLocked(bool locked) noexcept { locked_ = locked; }

    // By the program: always allowed, forgets the history, puts the caret behind the last character.
    void setText(std::wstring_view text);

    // Clamped to the text and to a place where a caret may stand; removes the selection.
    void setCaret(std::int64_t index) noexcept;

    void moveCaret(CaretMove move, bool extendSelection) noexcept;
    void moveCaretTo(std::size_t index, bool extendSelection) noexcept;
    void selectAll() noexcept;
    void selectWordAt(std::size_t index) noexcept;
    // Keeps whole words selected while the pointer drags after a double click on the word around `origin`.
    void extendByWords(std::size_t origin, std::size_t index) noexcept;

    // Edits by the user; true when the text changed. Line breaks and other control characters become blanks,
    // for the field has one line.
    bool type(std::wstring_view text);
    bool paste(std::wstring_view text);
    bool erase(Erase what);
    bool eraseSelection();

    bool canUndo() const noexcept { return !locked_ && applied_ > 0; }
    bool canRedo() const noexcept { return !locked_ && applied_ < history_.size(); }
    bool undo();
    bool redo();

    friend bool operator==(const TextEditModel&, const TextEditModel&) = default;

private:
    enum class EditKind : std::uint8_t { Typing, EraseLeft, EraseRight, Other };

    struct Edit {
        EditKind kind;
        std::size_t position;
        std::wstring removed;
        std::wstring inserted;
        std::size_t caretBefore;
        std::size_t anchorBefore;
        friend bool operator==(const Edit&, const Edit&) = default;
    };

    bool replace(std::size_t first, std::size_t last, std::wstring_view with, EditKind kind);
    bool joinsPrevious(const Edit& edit) const noexcept;
    void remember(Edit edit);
    std::size_t target(CaretMove move) const noexcept;
    void select(std::size_t caret, std::size_t anchor) noexcept;

    std::wstring text_;
    std::size_t caret_ = 0;
    std::size_t anchor_ = 0;
    bool locked_ = false;
    bool runBroken_ = true; // the caret moved by itself since the last edit: the next one starts a new run
    std::vector<Edit> history_;
    std::size_t applied_ = 0; // edits of the history that are in the text; the others can be redone
};

// The horizontal scroll offset, in pixels, that keeps the caret `margin` away from the field's edges, moves
// as little as possible and leaves no empty space behind the text.
std::int32_t scrollToCaret(std::int32_t offset, std::int32_t caretX, std::int32_t textWidth,
                           std::int32_t fieldWidth, std::int32_t margin) noexcept;

} // namespace vela
