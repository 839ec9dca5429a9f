#include "vela/render/surface/surface_shape.h"

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/render/bitmaps/surface_outline.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/owned_gdi.h"
#include "vela/render/shapes/shape.h"
#include "vela/render/shapes/shape_rects.h"

#include <cstring>
#include <vector>

namespace vela {
namespace {

// Fills rectangles with a colour; needs no brush of its own.
class SolidFiller {
public:
    SolidFiller(HDC dc, Point origin, Color color)
        : dc_(dc), origin_(origin), brush_(dc, ::GetStockObject(DC_BRUSH)),
          oldColor_(::SetDCBrushColor(dc, color))
    {
    }
    ~SolidFiller() { ::SetDCBrushColor(dc_, oldColor_); }
    SolidFiller(const SolidFiller&) = delete;
    SolidFiller& operator=(const SolidFiller&) = delete;

    void operator()(const Rect& rect) const
    {
        ::PatBlt(dc_, origin_.x + rect.x, origin_.y + rect.y, rect.width, rect.height, PATCOPY);
    }

private:
    HDC dc_;
    Point origin_;
    SelectedObject brush_;
    COLORREF oldColor_;
};

// The part of the rectangle that can be seen, seen from its corner.
Rect visibleFrom(HDC dc, const Rect& rect) noexcept
{
    const Rect visible = visiblePart(dc, rect);
    return isEmpty(visible) ? Rect{}
                            : Rect{visible.x - rect.x, visible.y - rect.y, visible.width, visible.height};
}

HRGN polygonRegion(ShapeKind kind, Size size)
{
    std::vector<POINT> corners;
    for (const Point corner : shapePolygon(kind, {0, 0, size.width, size.height}))
        corners.push_back({corner.x, corner.y});
    return corners.empty() ? nullptr
                           : ::CreatePolygonRgn(corners.data(), static_cast<int>(corners.size()), WINDING);
}

// One rectangle for each run of pixels; no rectangle at all makes a window that nothing can hit.
HRGN runRegion(const RunMask& outline)
{
    std::vector<RECT> rects(sizeof(RGNDATAHEADER) / sizeof(RECT)); // the header's room, then the runs
    static_assert(sizeof(RGNDATAHEADER) % sizeof(RECT) == 0);
    const std::size_t first = rects.size();
    for (std::int32_t y = 0; y < outline.size().height; ++y)
        for (const Span* run = outline.rowBegin(y); run != outline.rowEnd(y); ++run)
            rects.push_back({run->begin, y, run->end, y + 1});
    if (rects.size() == first)
        return ::CreateRectRgn(0, 0, 0, 0);
    const auto count = static_cast<DWORD>(rects.size() - first);
    const RGNDATAHEADER header{sizeof(RGNDATAHEADER),
                               RDH_RECTANGLES,
                               count,
                               static_cast<DWORD>(count * sizeof(RECT)),
                               {0, 0, outline.size().width, outline.size().height}};
    std::memcpy(rects.data(), &header, sizeof header);
    return ::ExtCreateRegion(nullptr, static_cast<DWORD>(rects.size() * sizeof(RECT)),
                             reinterpret_cast<const RGNDATA*>(rects.data()));
}

} // namespace

void render::fillShape(HDC dc, const Rect& rect, ShapeKind kind, Color color)
{
    visitFill(kind, sizeOf(rect), visibleFrom(dc, rect), SolidFiller(dc, {rect.x, rect.y}, color));
}

void render::strokeShapeOutline(HDC dc, const Rect& rect, ShapeKind kind, Color color, std::int32_t penWidth)
{
    visitStroke(kind, sizeOf(rect), penWidth, visibleFrom(dc, rect),
                SolidFiller(dc, {rect.x, rect.y}, color));
}

HRGN createShapeRegion(const SurfaceStyle& style, Size size)
{
    if (isEmpty(size))
        return nullptr;
    if (const RunMask* const outline = surfaceOutline(style, size, surfaceBitmaps(style)))
        return runRegion(*outline);
    // The right and bottom edge of a rounded region are one pixel short; a polygon's are not.
    if (const std::int32_t diameter = cornerDiameter(style.shape, size.width, size.height))
        return ::CreateRoundRectRgn(0, 0, size.width + 1, size.height + 1, diameter, diameter);
    return polygonRegion(style.shape, size);
}

} // namespace vela
