// What a text field looks like.
#include "vela/controls/widgets/text_input.h"

#include "vela/render/paint/paint.h"
#include "vela/render/pixels/length_limits.h"
#include "vela/theme/color/contrast.h"
#include "vela/theme/records/surface_tones.h"

#include <algorithm>

namespace vela {

namespace {

// 96-DPI pixels between the parts of a chip.
constexpr std::int32_t kChipPadding = 8;

Rect centredIn(const Rect& row, std::int32_t x, std::int32_t width, std::int32_t height) noexcept
{
    return {x, row.y + (row.height - height) / 2, width, height};
}

// The field's text where it can be read on the selection, else the field's own background.
Color selectedTextColor(const TextInputStyle& style)
{
    const Color background = style.focusedSurface.fill;
    return pickReaching({style.text.color, background}, surfaceTones(style.selection, background),
                        kTextContrast);
}

} // namespace

// A field that cannot be edited looks like one that cannot be used, but keeps its selection and its focus.
const SurfaceStyle& TextInput::surface() const
{
    if (!isEnabled() || model_.locked())
        return style_.disabledSurface;
    if (hasFocus())
        return style_.focusedSurface;
    if (isPressed())
        return style_.pressedSurface;
    return isHot() ? style_.hotSurface : style_.surface;
}

std::vector<TextInput::Chip> TextInput::chips() const
{
    std::vector<Chip> result;
    const Rect room = contentBounds();
    const std::int32_t height = std::min(style_.attachmentHeight, room.height);
    const std::int32_t image = height / 2;
    const std::int32_t padding = scaled(kChipPadding);
    const std::int32_t remove = style_.showAttachmentRemove ? style_.attachmentRemoveExtent : 0;
    std::int32_t x = room.x + style_.paddingX;
    for (const TextAttachment& attachment : attachments_) {
        const std::int32_t name =
            limitedLength(measureTextWidth(attachment.name, style_.attachmentText, dpi()));
        Chip chip;
        chip.image = centredIn(room, x + padding, image, image);
        chip.name = centredIn(room, chip.image.x + image + padding / 2, name, height);
        std::int32_t end = chip.name.x + name + padding;
        if (remove > 0) {
            chip.remove = centredIn(room, end - padding / 2, remove, remove);
            end += remove;
        }
        chip.body = centredIn(room, x, end - x, height);
        result.push_back(chip);
        x = limitedLength(end + style_.attachmentGap); // however many there are, further than any screen
    }
    return result;
}

// Several where the letters run both ways, with others between them.
std::vector<Rect> TextInput::selectedRects() const
{
    std::vector<Rect> rects;
    const Rect area = textArea();
    const std::int32_t height =
        std::min(std::max(style_.lineHeight, caretRect().value_or(Rect{}).height), area.height);
    for (const TextSpan& span : places().spans(model_.selectionStart(), model_.selectionEnd()))
        rects.push_back(centredIn(area, area.x + span.left - scroll_, span.right - span.left, height));
    return rects;
}

void TextInput::visitSurfaces(const SurfaceVisitor& visit) const
{
    for (const SurfaceStyle* const each : {&style_.surface, &style_.hotSurface, &style_.pressedSurface,
                                           &style_.disabledSurface, &style_.focusedSurface})
        visit({*each, localBounds(), each == &surface()});
    Rect seen = textArea();
    seen.width += caretRect().value_or(Rect{}).width;
    for (const Rect& selected : selectedRects())
        visit({style_.selection, selected, true, seen});
    if (attachments_.empty())
        return;
    for (const Chip& chip : chips()) {
        visit({style_.attachmentSurface, chip.body, true, localBounds()});
        visit({style_.attachmentImageSurface, chip.image, true, localBounds()});
        visit({style_.attachmentRemoveSurface, chip.remove, true, localBounds()});
    }
}

void TextInput::paint(HDC dc, Point origin)
{
    const Rect box = movedBy(bounds(), origin);
    paintControlSurface(dc, box, surface());
    paintChips(dc, {box.x, box.y});
    paintText(dc, {box.x, box.y});
    // The focused surface tells where the keyboard is; one that is locked has none.
    if (model_.locked() && hasFocus() && window()->showsFocus())
        paintFocusRing(dc, box, surface().shape, dpi(), surface().glow);
}

void TextInput::paintChips(HDC dc, Point at)
{
    const std::vector<Chip> shown = chips();
    if (shown.empty())
        return;
    const PaintClip clip(dc, {movedBy(localBounds(), at)});
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Chip& chip = shown[i];
        paintControlSurface(dc, movedBy(chip.body, at), style_.attachmentSurface);
        paintControlSurface(dc, movedBy(chip.image, at), style_.attachmentImageSurface);
        drawText(dc, movedBy(chip.name, at), attachments_[i].name, style_.attachmentText, dpi());
        if (chip.remove.width == 0)
            continue;
        const Rect remove = movedBy(chip.remove, at);
        paintControlSurface(dc, remove, style_.attachmentRemoveSurface);
        const std::int32_t inset = remove.width / 4;
        paintIcon(dc, Icon::Close,
                  {remove.x + inset, remove.y + inset, remove.width - 2 * inset, remove.height - 2 * inset},
                  dpi(), style_.attachmentIconColor);
    }
}

void TextInput::paintText(HDC dc, Point at)
{
    const Rect area = movedBy(textArea(), at);
    if (area.width == 0)
        return;
    if (model_.text().empty())
        drawText(dc, area, placeholder_, style_.placeholderText, dpi(),
                 {isEnabled() ? TextTone::Enabled : TextTone::Disabled});
    const Rect caret = movedBy(caretRect().value_or(Rect{}), at);
    // A caret behind the last character stands half outside the text.
    const PaintClip clip(dc, {{area.x, area.y, area.width + caret.width, area.height}});
    paintLine(dc, at, area, {area.x - scroll_, caret.y, places().width() + 1, caret.height});
    if (hasFocus() && caretShown_)
        fillShape(dc, caret, ShapeKind::Rect, style_.caretColor);
}

void TextInput::paintLine(HDC dc, Point at, const Rect& area, const Rect& line)
{
    const auto draw = [&](Color color) { drawUnclippedLine(dc, line, model_.text(), font(), dpi(), color); };
    const Color color = isEnabled() ? font().color : font().disabledColor;
    std::vector<Rect> selected = selectedRects();
    if (selected.empty())
        return draw(color);
    std::vector<Rect> others;
    std::int32_t x = area.x;
    const auto leaveUpTo = [&](std::int32_t end) {
        others.push_back({x, area.y, std::max(end - x, 0), area.height});
    };
    for (Rect& rect : selected) {
        rect = movedBy(rect, at);
        paintSurface(dc, rect, style_.selection);
        leaveUpTo(rect.x);
        x = rect.x + rect.width;
    }
    leaveUpTo(area.x + area.width);
    {
        const PaintClip around(dc, others);
        draw(color);
    }
    const PaintClip inside(dc, selected);
    draw(selectedTextColor(style_));
}

} // namespace vela
