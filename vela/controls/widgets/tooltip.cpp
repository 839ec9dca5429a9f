#include "vela/controls/widgets/tooltip.h"

#include "vela/controls/widgets/working_style.h"
#include "vela/render/paint/paint.h"
#include "vela/theme/records/style_sheet.h"

#include <algorithm>

namespace vela {

namespace {

// 96-DPI pixels.
constexpr std::int32_t kRailWidth = 3;

} // namespace

bool TooltipView::applyStyle(const StyleSheet& styles)
{
    changeReach([&] {
        style_ = workingStyle(styles.find<TooltipStyle>(styleKey()), dpi());
        shadow_ = style_.showShadow ? CastShadow(style_.surface, style_.shadow,
                                                 {style_.shadowOffsetX, style_.shadowOffsetY})
                                    : CastShadow();
    });
    return true;
}

std::int32_t TooltipView::textLeft() const noexcept
{
    std::int32_t left = style_.paddingX;
    if (style_.showAccentRail)
        left += scaled(kRailWidth) + style_.gap;
    if (style_.showIcon)
        left += style_.iconSize + style_.gap;
    return left;
}

Size TooltipView::preferredSize() const
{
    const Insets insets = insetsOf(style_.surface, &SurfaceGeometry::textInsets);
    const std::int32_t around = textLeft() + style_.paddingX + insets.left + insets.right;
    const std::int32_t room = std::max(style_.maxWidth - around, 1);
    const std::int32_t width = std::min(measureTextWidth(text_, style_.textStyle, dpi()) + 1, room);
    const std::int32_t text = measureText(text_, style_.textStyle, dpi(), width);
    const std::int32_t height = std::max(text, style_.showIcon ? style_.iconSize : 0);
    return {width + around, height + 2 * style_.paddingY + insets.top + insets.bottom};
}

Rect TooltipView::contentBounds() const
{
    return surfaceRoom(style_.surface, localBounds(), &SurfaceGeometry::textInsets);
}

std::int32_t TooltipView::innerHeight() const
{
    return std::max(contentBounds().height - 2 * style_.paddingY, 0);
}

Rect TooltipView::railRect() const
{
    const Rect room = contentBounds();
    const std::int32_t width = style_.showAccentRail ? scaled(kRailWidth) : 0;
    return {room.x + style_.paddingX, room.y + style_.paddingY, width, innerHeight()};
}

Rect TooltipView::iconRect() const
{
    const Rect room = contentBounds();
    const std::int32_t rail = style_.showAccentRail ? scaled(kRailWidth) + style_.gap : 0;
    const std::int32_t side = style_.showIcon ? style_.iconSize : 0;
    return {room.x + style_.paddingX + rail, room.y + style_.paddingY, side, side};
}

void TooltipView::visitSurfaces(const SurfaceVisitor& visit) const
{
    visit({shadow_.surface(), localBounds()});
    visit({style_.surface, localBounds()});
    visit({style_.accentRail, railRect()});
    visit({style_.icon, iconRect()});
}

void TooltipView::paint(HDC dc, Point origin)
{
    const Rect box = movedBy(bounds(), origin);
    const Point at{box.x, box.y};
    shadow_.paint(dc, *this, box);
    paintControlSurface(dc, box, style_.surface);
    const Rect room = movedBy(contentBounds(), at);
    const std::int32_t inner = innerHeight();
    if (style_.showAccentRail)
        paintControlSurface(dc, movedBy(railRect(), at), style_.accentRail);
    if (style_.showIcon) {
        const Rect icon = movedBy(iconRect(), at);
        paintControlSurface(dc, icon, style_.icon);
        const std::int32_t side = style_.iconSize / 2;
        paintIcon(dc, Icon::Info,
                  {icon.x + (icon.width - side) / 2, icon.y + (icon.height - side) / 2, side, side}, dpi(),
                  style_.iconText.color);
    }
    // Beside a larger icon the text stands in the middle.
    const std::int32_t width = std::max(room.width - textLeft() - style_.paddingX, 0);
    const std::int32_t height = std::min(measureText(text_, style_.textStyle, dpi(), width), inner);
    const Rect text{room.x + textLeft(), room.y + style_.paddingY + (inner - height) / 2, width, height};
    drawText(dc, text, text_, style_.textStyle, dpi(), {.wrap = TextWrap::Words});
}

} // namespace vela
