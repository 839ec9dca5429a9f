// What keys and the mouse do in a text field.
#include "vela/controls/widgets/text_input.h"

#include "vela/controls/tree/command_event.h"
#include "vela/render/paint/paint.h"

#include <algorithm>

namespace vela {

namespace {

constexpr struct {
    std::uint32_t key;
    bool control;
    CaretMove move;
} kMoves[] = {
    {kKeyLeft, false, CaretMove::Left},      {kKeyLeft, true, CaretMove::WordLeft},
    {kKeyRight, false, CaretMove::Right},    {kKeyRight, true, CaretMove::WordRight},
    {kKeyUp, false, CaretMove::Left},        {kKeyDown, false, CaretMove::Right},
    {kKeyHome, false, CaretMove::LineStart}, {kKeyHome, true, CaretMove::LineStart},
    {kKeyEnd, false, CaretMove::LineEnd},    {kKeyEnd, true, CaretMove::LineEnd},
};

// Shift+Backspace erases as Backspace does.
constexpr struct {
    std::uint32_t key;
    bool control;
    Erase what;
} kErasers[] = {
    {kKeyBack, false, Erase::Left},
    {kKeyBack, true, Erase::WordLeft},
    {kKeyDelete, false, Erase::Right},
    {kKeyDelete, true, Erase::WordRight},
};

constexpr struct {
    std::uint32_t key;
    bool control;
    bool shift;
    TextCommand command;
} kCommandKeys[] = {
    {L'A', true, false, TextCommand::SelectAll},   {L'C', true, false, TextCommand::Copy},
    {L'X', true, false, TextCommand::Cut},         {L'V', true, false, TextCommand::Paste},
    {L'Z', true, false, TextCommand::Undo},        {L'Y', true, false, TextCommand::Redo},
    {L'Z', true, true, TextCommand::Redo},         {kKeyInsert, true, false, TextCommand::Copy},
    {kKeyInsert, false, true, TextCommand::Paste}, {kKeyDelete, false, true, TextCommand::Cut},
};

constexpr bool isControlCharacter(wchar_t unit) noexcept { return unit < 0x20 || unit == 0x7F; }

} // namespace

bool TextInput::keyPressed(const KeyEvent& event)
{
    // Ctrl+Alt is AltGr: what it types comes as a character.
    if (event.modifiers.alt || !isEnabled())
        return false;
    const auto [control, shift, alt] = event.modifiers;
    for (const auto& row : kCommandKeys) {
        if (row.key == event.key && row.control == control && row.shift == shift) {
            perform(row.command);
            return true;
        }
    }
    for (const auto& row : kMoves) {
        if (row.key == event.key && row.control == control) {
            model_.moveCaret(row.move, shift);
            caretMoved();
            return true;
        }
    }
    for (const auto& row : kErasers) {
        if (row.key == event.key && row.control == control) {
            if (row.key == kKeyBack && erasesChip()) {
                removeAttachment(attachments_.size() - 1);
                return true;
            }
            const std::wstring before = model_.text();
            model_.erase(row.what);
            edited(before);
            return true;
        }
    }
    return false;
}

bool TextInput::characterTyped(std::wstring_view text)
{
    // Keys with Ctrl arrive as control characters too; they have been answered as keys.
    if (!isEnabled() || text.empty() || isControlCharacter(text.front()))
        return false;
    const std::wstring before = model_.text();
    model_.type(text);
    edited(before);
    return true;
}

TextCommandSet TextInput::enabledCommands() const
{
    TextServices* const system = services();
    const bool editable = !model_.locked() && isEnabled();
    const bool selected = model_.hasSelection();
    const auto length = static_cast<std::int32_t>(model_.text().size());
    const bool allSelected =
        model_.selectionStart() == 0 && model_.selectionEnd() == model_.text().size() && selected;
    TextCommandSet set{};
    const auto enable = [&set](TextCommand command, bool on) { set[static_cast<std::size_t>(command)] = on; };
    enable(TextCommand::Undo, model_.canUndo());
    enable(TextCommand::Redo, model_.canRedo());
    enable(TextCommand::Cut, editable && selected && system);
    enable(TextCommand::Copy, selected && system);
    enable(TextCommand::Paste, editable && system && system->clipboardHasText());
    enable(TextCommand::Erase, editable && selected);
    enable(TextCommand::SelectAll, length > 0 && !allSelected);
    return set;
}

void TextInput::perform(TextCommand command)
{
    if (!enabledCommands()[static_cast<std::size_t>(command)])
        return;
    const std::wstring before = model_.text();
    switch (command) {
    case TextCommand::Undo: model_.undo(); break;
    case TextCommand::Redo: model_.redo(); break;
    case TextCommand::Copy: services()->setClipboardText(model_.selectedText()); break;
    case TextCommand::Cut:
        services()->setClipboardText(model_.selectedText());
        model_.eraseSelection();
        break;
    case TextCommand::Paste:
        if (const std::optional<std::wstring> pasted = services()->clipboardText())
            model_.paste(*pasted);
        break;
    case TextCommand::Erase: model_.eraseSelection(); break;
    case TextCommand::SelectAll: model_.selectAll(); break;
    }
    edited(before);
}

bool TextInput::mouseButton(const MouseEvent& event)
{
    if (event.button != MouseButton::Left || !isVisible() || !isEnabled())
        return false;
    if (event.action == MouseAction::Release) {
        if (dragClicks_ == 0)
            return false;
        mouseCaptureLost();
        if (window())
            window()->captureMouse(nullptr);
        return true;
    }
    if (event.action != MouseAction::Press || !containsLocal(event.position))
        return false;
    if (window())
        window()->focusControl(this);
    if (pressChip(event.position))
        return true;
    dragClicks_ = event.clicks;
    dragOrigin_ = indexAt(event.position);
    if (event.clicks == 2)
        model_.selectWordAt(dragOrigin_);
    else if (event.clicks == 3)
        model_.selectAll();
    else
        model_.moveCaretTo(dragOrigin_, event.modifiers.shift);
    setPressed(true);
    caretMoved();
    if (window())
        window()->captureMouse(this);
    return true;
}

void TextInput::mouseDragged(Point position)
{
    const std::size_t index = indexAt(position);
    if (dragClicks_ == 1)
        model_.moveCaretTo(index, true);
    else if (dragClicks_ == 2)
        model_.extendByWords(dragOrigin_, index);
    else
        return;
    caretMoved();
}

void TextInput::mouseCaptureLost()
{
    dragClicks_ = 0;
    setPressed(false);
}

// Three letters a notch. A text that fits leaves the wheel to others.
bool TextInput::scrollByWheel(const MouseEvent& event)
{
    if (places().width() < textArea().width)
        return false;
    const std::int64_t letters = lineHeight(style_.text, dpi()) / 2 * 3;
    const std::int32_t percent = wheel_.turn(style_.scrollAcceleration, event.time);
    setScrollOffset(static_cast<std::int32_t>(scroll_ - letters * event.wheelDelta * percent / 12000));
    return true;
}

bool TextInput::mouseSecondary(const MouseEvent& event)
{
    if (event.action == MouseAction::Wheel && isVisible() && isEnabled() && containsLocal(event.position))
        return scrollByWheel(event);
    TextServices* const system = services();
    if (event.action != MouseAction::ContextMenu || !isVisible() || !isEnabled() || !system ||
        !containsLocal(event.position))
        return false;
    window()->focusControl(this);
    const Rect at = windowRect().value_or(Rect{});
    const std::optional<TextCommand> chosen =
        system->chooseCommand({at.x + event.position.x, at.y + event.position.y}, enabledCommands());
    if (chosen)
        perform(*chosen);
    return true;
}

bool TextInput::pressChip(Point position)
{
    const auto inside = [position](const Rect& rect) {
        return position.x >= rect.x && position.x < rect.x + rect.width && position.y >= rect.y &&
               position.y < rect.y + rect.height;
    };
    const std::vector<Chip> shown = chips();
    const auto hit =
        std::find_if(shown.begin(), shown.end(), [&](const Chip& chip) { return inside(chip.body); });
    if (hit == shown.end())
        return false;
    if (inside(hit->remove))
        removeAttachment(static_cast<std::size_t>(hit - shown.begin()));
    return true;
}

// Chips stand before the text: Backspace goes on with them where it begins.
bool TextInput::erasesChip() const noexcept
{
    return style_.showAttachmentRemove && !attachments_.empty() && model_.caret() == 0 &&
           !model_.hasSelection();
}

void TextInput::removeAttachment(std::size_t index)
{
    CommandEvent event;
    event.action = L"attachment-remove";
    event.text = attachments_[index].id;
    attachments_.erase(attachments_.begin() + static_cast<std::ptrdiff_t>(index));
    caretMoved();
    raise(event);
}

void TextInput::focusChanged(bool) { caretMoved(); }

bool TextInput::wantsAnimation() const
{
    return hasFocus() && isEnabled() && services() && services()->caretBlinkTime() > 0;
}

bool TextInput::animationTick(std::uint32_t elapsed)
{
    if (!wantsAnimation())
        return false;
    blinkElapsed_ += elapsed;
    const std::uint32_t period = services()->caretBlinkTime();
    if (blinkElapsed_ < period)
        return false;
    blinkElapsed_ %= period;
    caretShown_ = !caretShown_;
    const Rect at = windowRect().value_or(Rect{});
    window()->invalidateClient(movedBy(caretRect().value_or(Rect{}), {at.x, at.y}),
                               InvalidationReason::State);
    return true;
}

} // namespace vela
