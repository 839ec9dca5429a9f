#ifndef _WIN32 // the product's own renderer is linked there
#include "tests/support/recording_painter.h"

#include "vela/render/gdi/paint_clip.h"
#include "vela/render/gdi/program_icon.h"
#include "vela/render/shapes/shape.h"
#include "vela/render/surface/control_painter.h"
#include "vela/render/surface/surface_painter.h"
#include "vela/render/text/text.h"

#include <utility>

namespace vela {

namespace {

std::vector<testing::PaintCall>& calls()
{
    static std::vector<testing::PaintCall> recorded;
    return recorded;
}

std::int32_t unitWidth(std::int32_t dpi) { return 8 * dpi / 96; }

} // namespace

std::vector<testing::PaintCall> testing::takePaintCalls() { return std::exchange(calls(), {}); }

void paintSurface(HDC, const Rect& rect, const SurfaceStyle& style)
{
    calls().push_back({L"surface", rect, {}, style, style.fill});
}

void drawText(HDC, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t,
              TextLook look)
{
    const Color color = look.tone == TextTone::Enabled ? font.color : font.disabledColor;
    calls().push_back({L"text", rect, std::wstring(text), {}, color});
}

std::int32_t measureTextWidth(std::wstring_view text, const FontSpec&, std::int32_t dpi)
{
    return static_cast<std::int32_t>(text.size()) * unitWidth(dpi);
}

void measureTextEnds(std::wstring_view text, const FontSpec&, std::int32_t dpi,
                     std::vector<std::int32_t>& ends)
{
    ends.resize(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        ends[i] = static_cast<std::int32_t>(i + 1) * unitWidth(dpi);
}

void drawUnclippedLine(HDC, const Rect& rect, std::wstring_view text, const FontSpec&, std::int32_t,
                       Color color)
{
    calls().push_back({L"line", rect, std::wstring(text), {}, color});
}

bool isOnSurface(const SurfaceStyle&, ShapeKind hitShape, Size size, Point point)
{
    return pointInShape(hitShape, size.width, size.height, point);
}

Rect surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part, std::int32_t dpi)
{
    return roomOn(style, surface, part, dpi, nullptr);
}

void fillShape(HDC, const Rect& rect, ShapeKind, Color color)
{
    calls().push_back({L"fill", rect, {}, {}, color});
}

void strokeShapeOutline(HDC, const Rect& rect, ShapeKind kind, Color color, std::int32_t)
{
    SurfaceStyle style;
    style.shape = kind;
    calls().push_back({L"outline", rect, {}, style, color});
}

std::int32_t measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi, std::int32_t width)
{
    const std::int32_t lines = (measureTextWidth(text, font, dpi) + width - 1) / width;
    return lines * lineHeight(font, dpi);
}

std::int32_t lineHeight(const FontSpec&, std::int32_t dpi) { return 2 * unitWidth(dpi); }

void paintGlyph(HDC, Glyph, const Rect& box, std::int32_t, Color color)
{
    calls().push_back({L"glyph", box, {}, {}, color});
}

void paintProgramIcon(HDC, const Rect& box) { calls().push_back({L"icon", box, {}, {}, 0}); }

void paintFocusRing(HDC, const Rect& rect, ShapeKind, std::int32_t, Color color)
{
    calls().push_back({L"ring", rect, {}, {}, color});
}

void paintBadge(HDC, const Rect& rect, const SurfaceStyle& style)
{
    calls().push_back({L"badge", rect, {}, style, style.fill});
}

void paintControlSurface(HDC, const Rect& rect, const SurfaceStyle& style)
{
    calls().push_back({L"surface", rect, {}, style, style.fill});
}

void paintProgressFill(HDC, const Rect& track, const SurfaceStyle& fill, float end)
{
    calls().push_back(
        {L"progress", {track.x, track.y, static_cast<std::int32_t>(end), track.height}, {}, fill, fill.fill});
}

PaintClip::PaintClip(HDC dc, const std::vector<Rect>&) : dc_(dc), saved_(0) {}
PaintClip::~PaintClip() = default;

} // namespace vela
#endif
