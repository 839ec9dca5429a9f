// Shapes with antialiased edges: strokes, rings around the focus, what cuts a face and the end of a progress
// fill. What draws writes the whole target, transparent where nothing is drawn. Rectangles are in the
// coordinates of the target's surface; a line that lies on whole pixels stays crisp.
#pragma once

#include "vela/geometry.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela {

// A band along the shape's outline, width pixels wide, that begins so deep inside it: borders, and
// where the depth is negative, rings around the shape.
void strokeAntialiased(const LayerTarget& target, ShapeKind kind, const Rect& rect, float width, Color color,
                       float depth = 0);

// Everything outside of what lies so deep in the shape.
void fillDownTo(const LayerTarget& target, ShapeKind kind, const Rect& rect, float depth, Color color);

// Keeps of the target's pixels what lies in the shape.
void cutToShape(const LayerTarget& target, ShapeKind kind, const Rect& rect);

// The same when the shape ends at a fraction of a pixel on the right. Round ends stay round however short the
// shape gets; slanted ones keep their slant.
void cutToProgress(const LayerTarget& target, ShapeKind kind, const Rect& rect, float end);

} // namespace vela
