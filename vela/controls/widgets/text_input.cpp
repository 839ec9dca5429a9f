#include "vela/controls/widgets/text_input.h"

#include "vela/controls/tree/command_event.h"
#include "vela/controls/widgets/working_style.h"
#include "vela/render/paint/paint.h"
#include "vela/text.h"
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

// What cannot be changed is still there to be read.
const FontSpec& TextInput::font() const noexcept
{
    return model_.locked() ? style_.placeholderText : style_.text;
}

const TextPlaces& TextInput::places() const
{
    if (!places_)
        places_ = measureTextPlaces(model_.text(), font(), dpi());
    return *places_;
}

std::size_t TextInput::indexAt(Point position) const
{
    return places().indexAt(saturated(std::int64_t{position.x} - textArea().x + scroll_));
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
    const std::int32_t height = std::min(std::max(lineHeight(font(), dpi()), 1), area.height);
    return Rect{area.x + places().caretX(static_cast<std::size_t>(model_.caret())) - scroll_,
                area.y + (area.height - height) / 2, std::max(scaled(1), 1), height};
}

void TextInput::measureAgain()
{
    places_.reset();
    caretMoved();
}

void TextInput::onBoundsChanged() { measureAgain(); }

// A caret that moves is shown at once, and in sight.
void TextInput::caretMoved()
{
    caretShown_ = true;
    blinkElapsed_ = 0;
    scroll_ = scrollToCaret(scroll_, places().caretX(static_cast<std::size_t>(model_.caret())),
                            places().width(), textArea().width, scaled(kCaretMargin));
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
    measureAgain();
}

void TextInput::setPlaceholder(std::wstring text)
{
    placeholder_ = std::move(text);
    invalidate(InvalidationReason::State);
}

void TextInput::setScrollOffset(std::int32_t pixels)
{
    const std::int32_t furthest = std::max(places().width() + 1 - textArea().width, 0);
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
