#include "vela/controls/widgets/themed_button.h"

#include "vela/controls/widgets/working_style.h"
#include "vela/render/paint/paint.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// 96-DPI pixels between a caption and the sides of a button that is just wide enough.
constexpr std::int32_t kComfortablePadding = 12;

Rect narrowed(const Rect& rect, std::int32_t padding) noexcept
{
    return {rect.x + padding, rect.y, std::max(rect.width - 2 * padding, 0), std::max(rect.height, 0)};
}

} // namespace

std::int32_t captionPadding(std::int32_t height) noexcept { return std::clamp(height / 8, 2, 6); }

ThemedButton::ThemedButton(std::wstring id, Rect bounds, std::wstring text)
    : Pressable(std::move(id), bounds), text_(std::move(text))
{
}

bool ThemedButton::applyStyle(const StyleSheet& styles)
{
    setStyle(styles.find<ButtonStyle>(styleKey()));
    return true;
}

void ThemedButton::setStyle(const ButtonStyle& style)
{
    changeReach([&] { style_ = workingStyle(style, dpi()); });
    minimumSizeMayHaveChanged();
}

Size ThemedButton::minimumSize() const
{
    Size minimum = Control::minimumSize();
    if (isCollapsed() || text_.empty())
        return minimum;
    const FontSpec& font = style_.text.normal;
    const Insets around = insetsOf(style_.surface.normal, &SurfaceGeometry::textInsets);
    const std::int32_t caption = measureTextWidth(text_, font, dpi()) + 2 * scaled(kComfortablePadding);
    return largerOf(minimum, {caption + around.left + around.right,
                              lineHeight(font, dpi()) + around.top + around.bottom});
}

Rect ThemedButton::contentBounds() const
{
    return surfaceRoom(style_.surface[visualState()], localBounds(), &SurfaceGeometry::textInsets);
}

const BitmapSkin* ThemedButton::attachedImage() const
{
    const Boxed<BitmapSkin>& image = style_.surface[visualState()].image;
    return image ? &*image : nullptr;
}

VisualState ThemedButton::visualState() const noexcept
{
    if (!isEnabled())
        return VisualState::Disabled;
    if (isPressed())
        return VisualState::Pressed;
    if (active_)
        return VisualState::Active;
    return isHot() ? VisualState::Hot : VisualState::Normal;
}

void ThemedButton::visitSurfaces(const SurfaceVisitor& visit) const
{
    for (int i = 0; i < kVisualStateCount; ++i) {
        const auto state = static_cast<VisualState>(i);
        visit({style_.surface[state], localBounds(), state == visualState()});
    }
}

void ThemedButton::paint(HDC dc, Point origin)
{
    const Rect box = movedBy(bounds(), origin);
    const VisualState state = visualState();
    const FontSpec& font = style_.text[state];
    paintControlSurface(dc, box, style_.surface[state]);
    const TextTone tone = isEnabled() ? TextTone::Enabled : TextTone::Disabled;
    const Rect room = movedBy(contentBounds(), {box.x, box.y});
    if (icon_) {
        const std::int32_t side = captionIconSize(dpi());
        const Rect square{room.x + (room.width - side) / 2, room.y + (room.height - side) / 2, side, side};
        paintIcon(dc, *icon_, square, dpi(), isEnabled() ? font.color : font.disabledColor);
    } else {
        const Rect caption = narrowed(room, captionPadding(bounds().height));
        drawText(dc, caption, text_, font, dpi(), {tone, TextAlign::Center, TextWrap::SingleLine});
    }
    if (hasFocus() && window()->showsFocus())
        paintFocusRing(dc, box, style_.surface[state].shape, dpi(), style_.surface[state].glow);
}

void ThemedButton::activate()
{
    if (!isEnabled())
        return;
    CommandEvent event;
    event.action = action_.empty() ? id() : action_;
    event.text = text_;
    // A copy: any handler may destroy this button and its own handler with it.
    const ClickHandler handler = clicked_;
    raise(event);
    if (!event.handled && handler)
        handler(event);
}

bool ThemedButton::containsLocal(Point point) const
{
    if (!Control::containsLocal(point))
        return false;
    // By the surface at rest, whatever the state: or a button could flicker between two of them.
    return !style_.useSurfaceHitTesting ||
           isOnSurface(style_.surface.normal, style_.hitShape, sizeOf(bounds()), point);
}

AccessibleInfo ThemedButton::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::PushButton;
    info.action = AccessibleAction::Press;
    // One that shows an icon has its name in its hint.
    if (info.name.empty())
        std::swap(info.name, info.description);
    return info;
}

void ThemedButton::setText(std::wstring text)
{
    if (text == text_)
        return;
    text_ = std::move(text);
    minimumSizeMayHaveChanged();
    invalidate(InvalidationReason::State);
}

void ThemedButton::setIcon(std::optional<Icon> icon)
{
    if (std::exchange(icon_, icon) != icon)
        invalidate(InvalidationReason::State);
}

} // namespace vela
