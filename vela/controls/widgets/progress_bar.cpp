#include "vela/controls/widgets/progress_bar.h"

#include "vela/controls/widgets/working_style.h"
#include "vela/render/bitmaps/surface_insets.h"
#include "vela/render/paint/paint.h"
#include "vela/text.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// 96-DPI pixels of its height that a track keeps in a bar too low for the skin's insets.
constexpr std::int32_t kLeastTrack = 6;

} // namespace

float progressEnd(std::int32_t trackWidth, std::int32_t percent) noexcept
{
    return static_cast<float>(trackWidth) * static_cast<float>(std::clamp(percent, 0, 100)) / 100.0F;
}

bool ProgressBar::applyStyle(const StyleSheet& styles)
{
    changeReach([&] { style_ = workingStyle(styles.find<ProgressBarStyle>(styleKey()), dpi()); });
    return true;
}

std::wstring ProgressBar::text() const { return decimalText(value_) + L"%"; }

std::int32_t ProgressBar::labelRoom() const noexcept
{
    return showsLabel_ ? std::min(style_.labelWidth, bounds().width) : 0;
}

Rect ProgressBar::barRect() const noexcept { return {0, 0, bounds().width - labelRoom(), bounds().height}; }

Rect ProgressBar::trackRect() const noexcept
{
    const Rect bar = barRect();
    const std::int32_t mostInset = std::max((bar.height - scaled(kLeastTrack) + 1) / 2, 0);
    const std::int32_t inset = std::min(style_.insetY, mostInset);
    return insetBy(bar, {style_.insetX, inset, style_.insetX, inset});
}

// The fill's glow lies around as much of the track as is filled: all of it at the most.
void ProgressBar::visitSurfaces(const SurfaceVisitor& visit) const
{
    visit({style_.frame, barRect()});
    visit({style_.track, trackRect()});
    visit({style_.fill, trackRect()});
}

void ProgressBar::paint(HDC dc, Point origin)
{
    const Rect all = movedBy(bounds(), origin);
    const Rect bar = movedBy(barRect(), {all.x, all.y});
    const Rect track = movedBy(trackRect(), {all.x, all.y});
    paintControlSurface(dc, bar, style_.frame);
    paintControlSurface(dc, track, style_.track);
    SurfaceStyle fill = style_.fill;
    if (!isEnabled()) {
        fill.fill = style_.labelText.disabledColor;
        fill.useGradient = fill.materialEnabled = false;
    }
    paintProgressFill(dc, track, fill, progressEnd(track.width, value_));
    if (showsLabel_) {
        const Rect label{bar.x + bar.width + style_.labelPadding, all.y,
                         std::max(labelRoom() - style_.labelPadding, 0), all.height};
        drawText(
            dc, label, text(), style_.labelText, dpi(),
            {isEnabled() ? TextTone::Enabled : TextTone::Disabled, TextAlign::Right, TextWrap::SingleLine});
    }
}

bool ProgressBar::containsLocal(Point point) const
{
    return Control::containsLocal(point) &&
           isOnSurface(style_.frame, style_.frameShape, sizeOf(bounds()), point);
}

PropertyList ProgressBar::properties() const { return {{L"value", decimalText(value_)}}; }

void ProgressBar::setProperty(std::wstring_view name, std::wstring_view value)
{
    if (name == L"value")
        setValue(leadingInteger(value).value_or(value_));
}

void ProgressBar::setValue(std::int32_t percent)
{
    const std::int32_t clamped = std::clamp(percent, 0, 100);
    if (std::exchange(value_, clamped) != clamped)
        invalidate(InvalidationReason::State);
}

AccessibleInfo ProgressBar::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::ProgressBar;
    info.value = text();
    info.name.clear();
    info.busy = value_ < 100;
    return info;
}

} // namespace vela
