// Any sequence of edits and moves in a text field: caret and anchor always stand where a caret may stand, a
// refused edit changes nothing, and undoing and redoing everything leads to the text of the beginning and
// back.
#include "vela/controls/widgets/text_edit_model.h"
#include "vela/text_clusters.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace vela;

// More edits than the history keeps could not all be undone.
constexpr int kMostOperations = 400;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// What texts are made of, one byte each: letters, blanks, what paths have, and all that clusters are about.
constexpr std::wstring_view kPieces[] = {
    L"a",
    L"Z",
    L"\u0159",
    L"7",
    L"_",
    L" ",
    L"\u00A0",
    L"\\",
    L":",
    L".",
    L"\t",
    L"\r\n",
    L"\u0301",
    L"\u030C",
    L"\u200D",
    L"\uFE0F",
    L"\u0E34",
    L"\x7F",
    L"\xD83D",
    L"\xDE00",
    L"\xD83D\xDE00",
    L"\xD83C\xDFFB", // a skin tone
    L"\xD83D\xDC69\u200D\xD83D\xDCBB",
    L"Program Files",
};

// The fuzzer's bytes, one after the other; zeros when there are no more.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}

    bool empty() const noexcept { return at_ == end_; }
    std::uint8_t byte() noexcept { return empty() ? std::uint8_t{0} : *at_++; }
    bool flag() noexcept { return byte() % 2 != 0; }
    std::wstring text()
    {
        std::wstring made;
        for (int pieces = byte() % 8; pieces > 0; --pieces)
            made += kPieces[byte() % std::size(kPieces)];
        return made;
    }

private:
    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

bool isCaretStop(const std::wstring& text, std::int32_t index)
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at <= text.size() && nearestCaretStop(text, at) == at;
}

void checkState(const TextEditModel& model)
{
    const std::wstring& text = model.text();
    require(isCaretStop(text, model.caret()) && isCaretStop(text, model.anchor()));
    require(model.hasSelection() == (model.caret() != model.anchor()));
    require(model.selectionStart() <= model.selectionEnd() && model.selectionEnd() <= text.size());
    require(model.selectedText() ==
            text.substr(model.selectionStart(), model.selectionEnd() - model.selectionStart()));
    for (const wchar_t unit : text)
        require(static_cast<std::uint32_t>(unit) >= 0x20 && unit != 0x7F);
}

void move(TextEditModel& model, Input& input)
{
    const std::size_t index = input.byte();
    switch (input.byte() % 6) {
    case 0: return model.setCaret(static_cast<std::int64_t>(index) - 8);
    case 1: return model.moveCaretTo(index, input.flag());
    case 2: return model.selectWordAt(index);
    case 3: return model.extendByWords(input.byte(), index);
    case 4: return model.selectAll();
    default: return model.moveCaret(static_cast<CaretMove>(index % 6), input.flag());
    }
}

bool edit(TextEditModel& model, Input& input)
{
    switch (input.byte() % 6) {
    case 0: return model.type(input.text());
    case 1: return model.paste(input.text());
    case 2: return model.eraseSelection();
    case 3: return model.undo();
    case 4: return model.redo();
    default: return model.erase(static_cast<Erase>(input.byte() % 4));
    }
}

// A text that is edited no further, by way of its whole history.
void checkHistory(TextEditModel& model, const std::wstring& beginning)
{
    while (model.canRedo())
        require(model.redo());
    const std::wstring last = model.text();
    while (model.canUndo()) {
        require(model.undo());
        checkState(model);
    }
    require(!model.undo() && model.text() == beginning);
    while (model.canRedo()) {
        require(model.redo());
        checkState(model);
    }
    require(!model.redo() && model.text() == last);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    TextEditModel model;
    model.setText(input.text());
    const std::wstring beginning = model.text();
    for (int operation = 0; operation < kMostOperations && !input.empty(); ++operation) {
        const std::wstring before = model.text();
        if (input.flag()) {
            move(model, input);
            require(model.text() == before);
        } else {
            model.setLocked(input.byte() % 16 == 0);
            const bool changed = edit(model, input);
            require(changed ? !model.locked() : model.text() == before);
        }
        checkState(model);
    }
    model.setLocked(false);
    checkHistory(model, beginning);
    return 0;
}
