// Buttons of every emphasis, on any backdrop: the button kind itself and the buttons that other records
// contain.
#pragma once

#include "vela/theme/derive/surfaces.h"
#include "vela/theme/derive/texts.h"

namespace vela::derive {

enum class Emphasis : std::uint8_t {
    Solid,    // filled with the hue: the action that the dialog is about
    Standard, // a control's own face
    Outline,  // a control's face, half faded into the backdrop
    Soft,     // tinted with the hue
    Quiet,    // only text until the pointer comes
};

struct ButtonRecipe {
    Hue hue = Hue::Neutral;
    Emphasis emphasis = Emphasis::Standard;
    Type type = kBody;
};

void deriveButton(const DeriveContext& context, const ButtonRecipe& recipe, const Backdrop& backdrop,
                  ShapeKind shape, ButtonStyle& style);

} // namespace vela::derive
