#include "vela/render/paint/paint_recorder.h"

#include "vela/mul_div.h"
#include "vela/render/bitmaps/bitmap_geometry.h"
#include "vela/render/pixels/length_limits.h"
#include "vela/render/shapes/shape.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vela {
namespace {

PaintRecorder* present = nullptr;

std::int32_t unitWidth(std::int32_t dpi) { return 8 * dpi / kDesignDpi; }

struct RectOf {
    std::optional<Rect> operator()(const ClipCall&) const { return std::nullopt; }
    std::optional<Rect> operator()(const IconCall& call) const { return call.box; }
    std::optional<Rect> operator()(const ProgramIconCall& call) const { return call.box; }
    std::optional<Rect> operator()(const ProgressFillCall& call) const
    {
        return Rect{call.track.x, call.track.y, static_cast<std::int32_t>(std::ceil(call.end)),
                    call.track.height};
    }
    template <typename Call>
    std::optional<Rect> operator()(const Call& call) const
    {
        return call.rect;
    }
};

} // namespace

PaintRecorder::PaintRecorder() noexcept : outer_(std::exchange(present, this)) {}

PaintRecorder::~PaintRecorder() { present = outer_; }

void PaintRecorder::note(PaintCall call)
{
    if (present)
        present->calls_.push_back(std::move(call));
}

std::optional<Rect> paintedRect(const PaintCall& call) { return std::visit(RectOf(), call); }

void paintSurface(HDC, const Rect& rect, const SurfaceStyle& style)
{
    PaintRecorder::note(SurfaceCall{rect, style});
}

void paintControlSurface(HDC, const Rect& rect, const SurfaceStyle& style)
{
    PaintRecorder::note(ControlSurfaceCall{rect, style});
}

void paintProgressFill(HDC, const Rect& track, const SurfaceStyle& fill, float end)
{
    PaintRecorder::note(ProgressFillCall{track, fill, end});
}

void fillShape(HDC, const Rect& rect, ShapeKind kind, Color color)
{
    PaintRecorder::note(ShapeFillCall{rect, kind, color});
}

void strokeShapeOutline(HDC, const Rect& rect, ShapeKind kind, Color color, std::int32_t penWidth)
{
    PaintRecorder::note(ShapeOutlineCall{rect, kind, color, penWidth});
}

void paintFocusRing(HDC, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color)
{
    PaintRecorder::note(FocusRingCall{rect, shape, dpi, color});
}

void paintIcon(HDC, Icon icon, const Rect& box, std::int32_t dpi, Color color)
{
    PaintRecorder::note(IconCall{icon, box, dpi, color});
}

void paintProgramIcon(HDC, const Rect& box) { PaintRecorder::note(ProgramIconCall{box}); }

void drawText(HDC, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look)
{
    PaintRecorder::note(TextCall{rect, std::wstring(text), font, dpi, look});
}

void drawUnclippedLine(HDC, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                       Color color)
{
    PaintRecorder::note(UnclippedLineCall{rect, std::wstring(text), font, dpi, color});
}

std::int32_t measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi, std::int32_t width)
{
    const std::int64_t room = std::max(width, 1);
    const std::int64_t lines = (measureTextWidth(text, font, dpi) + room - 1) / room;
    return limitedLength(saturated(lines * lineHeight(font, dpi)));
}

std::int32_t lineHeight(const FontSpec&, std::int32_t dpi) { return 2 * unitWidth(dpi); }

std::int32_t measureTextWidth(std::wstring_view text, const FontSpec&, std::int32_t dpi)
{
    return limitedLength(saturated(static_cast<std::int64_t>(text.size()) * unitWidth(dpi)));
}

TextPlaces measureTextPlaces(std::wstring_view text, const FontSpec&, std::int32_t dpi)
{
    std::vector<std::int32_t> ends(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        ends[i] = static_cast<std::int32_t>(i + 1) * unitWidth(dpi);
    return TextPlaces(text, ends);
}

void textSettingsChanged() {}

bool isOnSurface(const SurfaceStyle&, ShapeKind hitShape, Size size, Point point)
{
    return pointInShape(hitShape, size.width, size.height, point);
}

Rect surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part)
{
    return roomOn(style, surface, part, nullptr);
}

PaintClip::PaintClip(HDC dc, const std::vector<Rect>& rects) : dc_(dc)
{
    PaintRecorder::note(ClipCall{rects});
}

PaintClip::~PaintClip() { PaintRecorder::note(ClipCall{}); }

} // namespace vela
