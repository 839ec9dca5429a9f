#include "vela/controls/widgets/text_input.h"

#include "vela/controls/tree/command_event.h"
#include "vela/controls/widgets/working_style.h"
#include "vela/render/paint/paint.h"
#include "vela/text.h"
#include "vela/text_clusters.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// 96-DPI pixels of text that stay visible beyond the caret.
constexpr std::int32_t kCaretMargin = 12;

} // namespace

TextInput::TextInput(std::wstring id, Rect bounds, std::wstring_view text) : Control(std::move(id), bounds)
{
    model_.setText(text);
}

bool TextInput::applyStyle(const StyleSheet& styles)
{
    changeReach([&] { style_ = workingStyle(styles.find<TextInputStyle>(styleKey()), dpi()); });
    minimumSizeMayHaveChanged();
    measureAgain();
    return true;
}

Size TextInput::minimumSize() const
{
    const Size own = Control::minimumSize();
    if (isCollapsed())
        return own;
    const Insets around = insetsOf(style_.surface, &SurfaceGeometry::textInsets);
    return largerOf(own, {2 * style_.paddingX + scaled(2 * kCaretMargin) + around.left + around.right,
                          2 * style_.paddingY + lineHeight(style_.text, dpi()) + around.top + around.bottom});
}

// By the surface at rest, whatever the state: the text stays where it is.
Rect TextInput::contentBounds() const
{
    return surfaceRoom(style_.surface, localBounds(), &SurfaceGeometry::textInsets);
}

TextServices* TextInput::services() const { return window() ? window()->textServices() : nullptr; }

const std::vector<std::int32_t>& TextInput::ends() const
{
    if (!std::exchange(endsKnown_, true))
        measureTextEnds(model_.text(), style_.text, dpi(), ends_);
    return ends_;
}

std::int32_t TextInput::xOf(std::size_t index) const { return index == 0 ? 0 : ends()[index - 1]; }

// The caret stop whose place is nearest to the pixel; `x` counts from the text's beginning.
std::size_t TextInput::indexAt(std::int32_t x) const
{
    const std::wstring& text = model_.text();
    std::size_t index = 0;
    while (index < text.size()) {
        const std::size_t next = nextCaretStop(text, index);
        if (std::int64_t{xOf(index)} + xOf(next) > 2 * std::int64_t{x})
            break;
        index = next;
    }
    return index;
}

Rect TextInput::textArea() const
{
    const Rect room = contentBounds();
    const std::vector<Chip> shown = chips();
    const std::int32_t left = shown.empty()
                                  ? room.x + style_.paddingX
                                  : shown.back().body.x + shown.back().body.width + style_.attachmentGap;
    return {left, room.y, std::max(room.x + room.width - left - style_.paddingX, 0), room.height};
}

std::optional<Rect> TextInput::caretRect() const
{
    const Rect area = textArea();
    const std::int32_t height = std::min(std::max(lineHeight(style_.text, dpi()), 1), area.height);
    return Rect{area.x + xOf(static_cast<std::size_t>(model_.caret())) - scroll_,
                area.y + (area.height - height) / 2, std::max(scaled(1), 1), height};
}

void TextInput::measureAgain()
{
    endsKnown_ = false;
    caretMoved();
}

void TextInput::onBoundsChanged() { measureAgain(); }

// A caret that moves is shown at once, and in sight.
void TextInput::caretMoved()
{
    caretShown_ = true;
    blinkElapsed_ = 0;
    scroll_ = scrollToCaret(scroll_, xOf(static_cast<std::size_t>(model_.caret())), textWidth(),
                            textArea().width, scaled(kCaretMargin));
    invalidate(InvalidationReason::State);
}

void TextInput::edited(const std::wstring& before)
{
    if (model_.text() == before)
        return caretMoved();
    measureAgain();
    CommandEvent event;
    event.action = L"change";
    event.text = model_.text();
    event.oldValue = before;
    event.newValue = model_.text();
    // Last: a handler may destroy the field.
    raise(event);
}

void TextInput::setText(std::wstring_view text)
{
    model_.setText(text);
    measureAgain();
}

void TextInput::setEditLock(bool locked)
{
    if (locked == model_.locked())
        return;
    model_.setLocked(locked);
    invalidate(InvalidationReason::State);
}

void TextInput::setPlaceholder(std::wstring text)
{
    placeholder_ = std::move(text);
    invalidate(InvalidationReason::State);
}

void TextInput::setScrollOffset(std::int32_t pixels)
{
    const std::int32_t furthest = std::max(textWidth() + 1 - textArea().width, 0);
    if (std::exchange(scroll_, std::clamp(pixels, 0, furthest)) != scroll_)
        invalidate(InvalidationReason::State);
}

void TextInput::setAttachments(std::vector<TextAttachment> attachments)
{
    attachments_ = std::move(attachments);
    caretMoved();
}

bool TextInput::containsLocal(Point point) const
{
    return Control::containsLocal(point) &&
           isOnSurface(style_.surface, style_.shape, sizeOf(bounds()), point);
}

PropertyList TextInput::properties() const
{
    return {{L"text", model_.text()},
            {L"caretIndex", decimalText(model_.caret())},
            {L"textScrollOffset", decimalText(scroll_)},
            {L"attachmentCount", decimalText(attachments_.size())}};
}

void TextInput::setProperty(std::wstring_view name, std::wstring_view value)
{
    if (name == L"text") {
        setText(value);
    } else if (name == L"caretIndex") {
        model_.setCaret(leadingInteger(value).value_or(model_.caret()));
        caretMoved();
    } else if (name == L"textScrollOffset") {
        setScrollOffset(leadingInteger(value).value_or(scroll_));
    }
}

AccessibleInfo TextInput::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::EditableText;
    info.name = placeholder_;
    info.value = model_.text();
    info.action = AccessibleAction::Edit;
    info.readOnly = model_.locked();
    return info;
}

} // namespace vela
