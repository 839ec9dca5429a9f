// Buttons of every emphasis, on any backdrop: the button kind itself and the buttons that other records
// contain.
#pragma once

#include "vela/theme/derive/surfaces.h"
#include "vela/theme/derive/texts.h"

namespace vela::derive {

enum class Emphasis : std::uint8_t {
    Solid,    // filled with the intent's colour: the action that the dialog is about
    Standard, // a control's own face
    Outline,  // a control's face, half faded into the backdrop
    Soft,     // tinted with it
    Quiet,    // only text until the pointer comes
};

struct ButtonRecipe {
    Intent intent = Intent::Neutral;
    Emphasis emphasis = Emphasis::Standard;
    TypeStep step = kBody;
};

void deriveButton(const Context& context, const ButtonRecipe& recipe, const Backdrop& backdrop,
                  ShapeKind shape, ButtonStyle& style);

} // namespace vela::derive
