#include "tools/gallery/sheet_gdi.h"

#include "tools/png_file_win32.h"
#include "vela/render/paint/paint.h"

#include <algorithm>

namespace gallery {

using vela::Rect;
using vela::TextAlign;

Sheet::Sheet(vela::Size size, const SheetColors& colors) : colors_(colors), surface_(size)
{
    vela::fillShape(dc(), {0, 0, size.width, size.height}, vela::ShapeKind::Rect, colors.background);
}

void Sheet::text(const Rect& rect, std::wstring_view text, std::int32_t points, std::int32_t weight,
                 vela::Color color, TextAlign align)
{
    vela::drawText(dc(), rect, text, {L"Segoe UI", points, weight, color, color}, kDpi, {.align = align});
}

void Sheet::title(vela::Point at, std::wstring_view line)
{
    text({at.x, at.y, surface_.size().width - at.x, 36}, line, 19, 300, colors_.text, TextAlign::Left);
}

void Sheet::heading(vela::Point at, std::wstring_view line)
{
    text({at.x, at.y, surface_.size().width - at.x, 20}, line, 10, 600, colors_.text, TextAlign::Left);
}

void Sheet::caption(const Rect& rect, std::wstring_view line, TextAlign align)
{
    text(rect, line, 8, 400, colors_.faintText, align);
}

bool Sheet::save(const std::wstring& path, std::int32_t height) const
{
    vela::PixelView pixels = surface_.pixels();
    if (height > 0)
        pixels.size.height = std::min(pixels.size.height, height);
    return tools::writePng(path, pixels);
}

void paintBadge(HDC dc, const Rect& rect, vela::ShapeKind shape, vela::Color color)
{
    vela::SurfaceStyle plain;
    plain.shape = shape;
    plain.fill = color;
    plain.drawBorder = false;
    plain.materialDepth = 0;
    vela::paintControlSurface(dc, rect, plain);
}

Rect Flow::place(vela::Size size)
{
    if (next_.x > area_.x && next_.x + size.width > area_.x + area_.width)
        newRow();
    const Rect rect{next_.x, next_.y, size.width, size.height};
    next_.x += size.width + gap_;
    rowHeight_ = std::max(rowHeight_, size.height);
    return rect;
}

void Flow::newRow()
{
    next_ = {area_.x, next_.y + rowHeight_ + gap_};
    rowHeight_ = 0;
}

} // namespace gallery
