#include "vela/controls/widgets/check_box.h"

#include "vela/controls/widgets/working_style.h"
#include "vela/render/paint/paint.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

constexpr struct {
    std::wstring_view word;
    bool checked;
} kCheckedWords[] = {{L"true", true},   {L"1", true},  {L"yes", true},
                     {L"false", false}, {L"0", false}, {L"no", false}};

// 96-DPI pixels between the ring and what it goes around.
constexpr std::int32_t kRingAir = 2;

// A ring of a shape that narrows towards its sides would cut into box and caption.
constexpr ShapeKind ringShape(ShapeKind box) noexcept
{
    const bool fits = box == ShapeKind::Rect || box == ShapeKind::Bevel || box == ShapeKind::Octagon;
    return fits ? box : ShapeKind::RoundedRect;
}

// Of a box that is not checked and of one that is: at rest, hot, pressed and disabled.
constexpr SurfaceStyle CheckBoxStyle::*kBoxes[2][4] = {
    {&CheckBoxStyle::boxUnchecked, &CheckBoxStyle::boxUncheckedHot, &CheckBoxStyle::boxUncheckedPressed,
     &CheckBoxStyle::boxUncheckedDisabled},
    {&CheckBoxStyle::boxChecked, &CheckBoxStyle::boxCheckedHot, &CheckBoxStyle::boxCheckedPressed,
     &CheckBoxStyle::boxCheckedDisabled}};

constexpr const wchar_t* asText(bool checked) noexcept { return checked ? L"true" : L"false"; }

} // namespace

CheckBox::CheckBox(std::wstring id, Rect bounds, std::wstring text)
    : Pressable(std::move(id), bounds), text_(std::move(text))
{
}

bool CheckBox::applyStyle(const StyleSheet& styles)
{
    changeReach([&] {
        style_ = workingStyle(styles.find<CheckBoxStyle>(styleKey()), dpi());
        captionWidth_.reset();
    });
    return true;
}

const SurfaceStyle& CheckBox::boxSurface() const noexcept
{
    const int state = !isEnabled() ? 3 : isPressed() ? 2 : isHot() ? 1 : 0;
    return style_.*kBoxes[checked_][state];
}

void CheckBox::visitSurfaces(const SurfaceVisitor& visit) const
{
    const SurfaceStyle* const shown = &boxSurface();
    for (const auto& states : kBoxes) {
        for (const auto box : states)
            visit({style_.*box, boxRect(), &(style_.*box) == shown});
    }
}

Rect CheckBox::boxRect() const noexcept
{
    const std::int32_t side = std::min(style_.boxSize, std::max(bounds().height, 0));
    return {0, (bounds().height - side) / 2, side, side};
}

void CheckBox::paint(HDC dc, Point origin)
{
    const Rect all = movedBy(bounds(), origin);
    const Rect box = movedBy(boxRect(), {all.x, all.y});
    paintControlSurface(dc, box, boxSurface());
    if (checked_)
        paintIcon(dc, Icon::Check, iconBoxOn(boxSurface().shape, box), dpi(), style_.checkColor);
    const TextTone tone = isEnabled() ? TextTone::Enabled : TextTone::Disabled;
    const Rect caption{all.x + style_.textLeft, all.y, std::max(all.width - style_.textLeft, 0), all.height};
    drawText(dc, caption, text_, style_.text, dpi(), {tone, TextAlign::Left, TextWrap::SingleLine});
    if (hasFocus() && window()->showsFocus())
        paintFocusRing(dc, movedBy(focusBounds(), {all.x, all.y}), ringShape(boxSurface().shape), dpi(),
                       boxSurface().glow);
}

std::int32_t CheckBox::captionWidth() const
{
    if (!captionWidth_)
        captionWidth_ = measureTextWidth(text_, style_.text, dpi());
    return *captionWidth_;
}

// The ring goes around box and caption, not around the empty rest of the row.
Rect CheckBox::focusBounds() const
{
    const std::int32_t air = scaled(kRingAir);
    const std::int32_t end = style_.textLeft + captionWidth() + air;
    return {-air, 0, air + std::clamp(end, 0, std::max(bounds().width, 0)), bounds().height};
}

void CheckBox::activate()
{
    if (!isEnabled())
        return;
    CommandEvent event;
    event.action = L"change";
    event.text = text_;
    event.oldChecked = checked_;
    event.newChecked = !checked_;
    event.oldValue = asText(event.oldChecked);
    event.newValue = asText(event.newChecked);
    setChecked(event.newChecked);
    // A copy: a handler at the window may destroy this check box and its own handler with it.
    const ChangeHandler handler = changed_;
    raise(event);
    if (handler)
        handler(event);
}

PropertyList CheckBox::properties() const { return {{L"checked", asText(checked_)}}; }

void CheckBox::setProperty(std::wstring_view name, std::wstring_view value)
{
    if (name != L"checked")
        return;
    const auto* const row = std::find_if(std::begin(kCheckedWords), std::end(kCheckedWords),
                                         [value](const auto& candidate) { return candidate.word == value; });
    if (row != std::end(kCheckedWords))
        setChecked(row->checked);
}

AccessibleInfo CheckBox::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::CheckBox;
    info.action = AccessibleAction::Toggle;
    info.checked = checked_;
    return info;
}

} // namespace vela
