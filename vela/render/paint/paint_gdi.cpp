// What controls paint with, as the product does it, but for texts and icons.
#include "vela/render/paint/paint.h"

#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/program_icon.h"
#include "vela/render/paint/unless_out_of_memory.h"
#include "vela/render/pixels/length_limits.h"
#include "vela/render/surface/mark_painter.h"
#include "vela/render/surface/surface_painter.h"
#include "vela/render/surface/surface_shape.h"
#include "vela/render/text/text.h"

namespace vela {

void paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    paintUnlessOutOfMemory([&] { render::paintSurface(dc, rect, style); });
}

void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    paintUnlessOutOfMemory([&] { render::paintControlSurface(dc, rect, style); });
}

void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end)
{
    paintUnlessOutOfMemory([&] { render::paintProgressFill(dc, track, fill, end); });
}

void fillShape(HDC dc, const Rect& rect, ShapeKind kind, Color color)
{
    paintUnlessOutOfMemory([&] { render::fillShape(dc, rect, kind, color); });
}

void strokeShapeOutline(HDC dc, const Rect& rect, ShapeKind kind, Color color, std::int32_t penWidth)
{
    paintUnlessOutOfMemory([&] { render::strokeShapeOutline(dc, rect, kind, color, penWidth); });
}

void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color)
{
    paintUnlessOutOfMemory([&] { render::paintFocusRing(dc, rect, shape, dpi, color); });
}

void paintProgramIcon(HDC dc, const Rect& box)
{
    paintUnlessOutOfMemory([&] { render::paintProgramIcon(dc, box); });
}

std::int32_t measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi, std::int32_t width)
{
    return limitedLength(render::measureText(text, font, dpi, width));
}

std::int32_t lineHeight(const FontSpec& font, std::int32_t dpi)
{
    return limitedLength(render::lineHeight(font, dpi));
}

std::int32_t measureTextWidth(std::wstring_view text, const FontSpec& font, std::int32_t dpi)
{
    return limitedLength(render::measureTextWidth(text, font, dpi));
}

TextPlaces measureTextPlaces(std::wstring_view text, const FontSpec& font, std::int32_t dpi)
{
    return render::measureTextPlaces(text, font, dpi);
}

void textSettingsChanged() { render::textSettingsChanged(); }

bool isOnSurface(const SurfaceStyle& style, ShapeKind hitShape, Size size, Point point)
{
    return render::isOnSurface(style, hitShape, size, point);
}

Rect surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part)
{
    return render::surfaceRoom(style, surface, part);
}

PaintClip::PaintClip(HDC dc, const std::vector<Rect>& rects) : dc_(dc), saved_(narrowClip(dc, rects)) {}
PaintClip::~PaintClip() { restoreClip(dc_, saved_); }

} // namespace vela
