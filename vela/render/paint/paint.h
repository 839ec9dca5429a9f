// All that controls paint with, and all that they ask of the renderer beside it: the one door between the
// two. Behind it stands GDI in the product; where there is no Windows, something that notes what it is told
// (paint_recorder.h). Which of them is decided by what a program links.
//
// Rectangles are device pixels in the context's logical coordinates, which are the window's client pixels;
// fonts are records at a window's DPI, for a device context knows only the system's. Nothing reports failure:
// what cannot be painted is left out. UI thread only.
#pragma once

#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/render/bitmaps/surface_insets.h"
#include "vela/render/shapes/icons.h"
#include "vela/render/text/text_look.h"
#include "vela/render/text/text_places.h"
#include "vela/theme/records/surface_style.h"
#include "vela/theme/records/theme.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace vela {

// All layers of the style, in their order. Costs nothing when the clip hides the surface.
void paintSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);

// The same layers with an antialiased outline: round and slanted edges are smooth, straight ones crisp.
void paintControlSurface(HDC dc, const Rect& rect, const SurfaceStyle& style);

// A fill's surface from the track's left edge to `end` pixels, which may be a fraction.
void paintProgressFill(HDC dc, const Rect& track, const SurfaceStyle& fill, float end);

// Fill and stroke cover exactly pixels of the shape's mask. The stroke lies inside the rectangle, the pen's
// width deep.
void fillShape(HDC dc, const Rect& rect, ShapeKind kind, Color color);
void strokeShapeOutline(HDC dc, const Rect& rect, ShapeKind kind, Color color, std::int32_t penWidth);

// A band of the shape around the rectangle, within focusRingBounds.
void paintFocusRing(HDC dc, const Rect& rect, ShapeKind shape, std::int32_t dpi, Color color);

void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color);

// The program's own icon; nothing in a program without one.
void paintProgramIcon(HDC dc, const Rect& box);

// A single line stands in the middle of the rectangle's height, wrapped lines begin at its top. What does not
// fit ends in an ellipsis; an ampersand is an ampersand.
void drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look = {});

// One line from the rectangle's top left corner, neither cut nor clipped: for fields that scroll.
void drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                       std::int32_t dpi, Color color);

// The height in pixels of the text wrapped to a width; of one line; the width of a text on one line. None is
// longer than kLongestLength, whatever the font.
std::int32_t measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi, std::int32_t width);
std::int32_t lineHeight(const FontSpec& font, std::int32_t dpi);
std::int32_t measureTextWidth(std::wstring_view text, const FontSpec& font, std::int32_t dpi);

// Where the letters of an unclipped line stand: for carets, clicks and selections.
TextPlaces measureTextPlaces(std::wstring_view text, const FontSpec& font, std::int32_t dpi);

// To be called when the user has changed how text is smoothed, or the monitors: what is drawn from then on
// follows. What stands on the screen has to be painted again.
void textSettingsChanged();

// Whether the pointer is on what is painted: by the surface's bitmap where the style says so, else by the
// shape that a control names for its hits.
bool isOnSurface(const SurfaceStyle& style, ShapeKind hitShape, Size size, Point point);

// The part of the surface that its bitmap leaves for its text, or for another part of what stands on it.
Rect surfaceRoom(const SurfaceStyle& style, const Rect& surface, PartInsets part);

// Narrows what painting may touch to some rectangles for as long as it lives: what lies in the old clip and
// in at least one of them.
class PaintClip {
public:
    PaintClip(HDC dc, const std::vector<Rect>& rects);
    ~PaintClip();
    PaintClip(const PaintClip&) = delete;
    PaintClip& operator=(const PaintClip&) = delete;

private:
    HDC dc_;
    int saved_ = 0; // what SaveDC told
};

} // namespace vela
