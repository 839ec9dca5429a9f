// The outlines a surface can have. Every consumer of a shape (fill, stroke, window region, hit test, pixel
// layers) takes its corners, cuts and points from here, so that all of them cover the same pixels. Integer
// device pixels; the rules know no DPI and follow from the rectangle's own size.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/vocabulary.h"

#include <vector>

namespace vela {

// RoundedRect's nominal corner radius: a quarter of the short side, 4 to 12 pixels.
std::int32_t cornerRadius(std::int32_t width, std::int32_t height) noexcept;

// RoundedRect's corner circles as they are drawn: twice the radius, never more than the short side.
std::int32_t roundedDiameter(std::int32_t width, std::int32_t height) noexcept;

// Pill's end circles: the short side, at least 1.
std::int32_t pillDiameter(std::int32_t width, std::int32_t height) noexcept;

// The diameter of a kind's corner circles, as GDI's rounded calls take it; 0 for a kind without round
// corners.
std::int32_t cornerDiameter(ShapeKind kind, std::int32_t width, std::int32_t height) noexcept;

// How far the 45 degree corner cuts of Bevel and Octagon reach; 0 for every other kind.
std::int32_t cornerCut(ShapeKind kind, std::int32_t width, std::int32_t height) noexcept;

// How far Hexagon and the slants lean in, horizontally.
std::int32_t shapeInset(std::int32_t width, std::int32_t height) noexcept;

// The corners of Diamond to SlantLeft, clockwise from the top-left-most; empty for every other kind.
std::vector<Point> shapePolygon(ShapeKind kind, const Rect& rect);

// Whether the pixel at the point (relative to the shape's top-left corner) belongs to the shape. This is the
// definition of the mask; layers that walk whole rows use shapeRow (shape_rows.h), which gives the same
// pixels.
bool pointInShape(ShapeKind kind, std::int32_t width, std::int32_t height, Point point) noexcept;

} // namespace vela
