#include "vela/controls/widgets/label.h"

#include "vela/render/paint/paint.h"
#include "vela/theme/records/style_sheet.h"

#include <utility>

namespace vela {

Label::Label(std::wstring id, Rect bounds, std::wstring text)
    : Control(std::move(id), bounds), text_(std::move(text))
{
}

bool Label::applyStyle(const StyleSheet& styles)
{
    setTextStyle(styles.find<TextStyle>(styleKey()));
    return true;
}

void Label::paint(HDC dc, Point origin)
{
    const TextTone tone = isEnabled() ? TextTone::Enabled : TextTone::Disabled;
    drawText(dc, movedBy(bounds(), origin), text_, textStyle(), dpi(), {tone, align_});
}

bool Label::containsLocal(Point point) const { return !hint().empty() && Control::containsLocal(point); }

AccessibleInfo Label::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::StaticText;
    return info;
}

void Label::setText(std::wstring text)
{
    if (text == text_)
        return;
    text_ = std::move(text);
    invalidate(InvalidationReason::State);
}

void Label::setAlign(TextAlign align)
{
    if (std::exchange(align_, align) != align)
        invalidate(InvalidationReason::State);
}

} // namespace vela
