// The recipes that all builders share: from a fill and the way a part stands in the light to its whole
// surface record, and the faces that a control shows in its states.
#pragma once

#include "vela/theme/derive/context.h"
#include "vela/theme/records/control_styles.h"

namespace vela::derive {

// Which of the theme's three materials a part is made of, if any.
enum class MaterialRole : std::uint8_t { None, Surface, Control, Accent };

// What a part looks like in one state, before its mode and material are added.
struct Face {
    Color fill = 0;
    Color border = 0;
    Elevation elevation = Elevation::Flat;
    MaterialRole material = MaterialRole::None;
    bool drawn = true; // false: only what lies under it shows
    bool bordered = true;
};

SurfaceStyle surfaceOf(const Context& context, const Face& face, ShapeKind shape);
// Draws nothing, but knows its shape and focus colour.
SurfaceStyle bareSurface(const Context& context, ShapeKind shape);
// A level surface without shading: rails, overlays, selections.
SurfaceStyle flatSurface(const Context& context, Color fill, ShapeKind shape);
SurfaceStyle sunkenSurface(const Context& context, Color fill, Color border, ShapeKind shape);
// A panel, bar or popup.
SurfaceStyle containerSurface(const Context& context, Color fill, Color border, ShapeKind shape);
// A strong colour as a fill on which text can be read.
Color solidFill(const Context& context, Color wanted, Elevation elevation);
// A face in such a colour, with a border that stands out from the backdrop where the colour does not.
Face solidFace(const Context& context, Color fill, const Backdrop& backdrop, Elevation elevation);
// A raised disc or dot in the colour of an intent.
SurfaceStyle badgeSurface(const Context& context, Intent intent, const Backdrop& backdrop, ShapeKind shape);

Backdrop backdropOf(const SurfaceStyle& surface, const Backdrop& under);

} // namespace vela::derive
