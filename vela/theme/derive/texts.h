// How text is set: in the theme's fonts, in colours that can be read on what they lie on.
#pragma once

#include "vela/theme/derive/context.h"

namespace vela::derive {

// A step of the type ramp: how the text of a part differs from the theme's.
struct TypeStep {
    std::int32_t points = 0; // added to the theme's size
    std::int32_t weight = 0; // added to the theme's weight
};
inline constexpr TypeStep kBody = {};
inline constexpr TypeStep kLabel = {.points = 0, .weight = 200};
inline constexpr TypeStep kSmall = {.points = -1, .weight = 0};

FontSpec textOf(const Context& context, Color color, Color disabledColor, TypeStep step = kBody);
// Text in the first of the wanted colours that can be read on the backdrop.
FontSpec textOn(const Context& context, const ToneRange& on, std::initializer_list<Color> wanted,
                TypeStep step = kBody);
// Sentences are read in the regular weight, however heavy a skin makes its captions.
FontSpec readingTextOn(const Context& context, const ToneRange& on, std::initializer_list<Color> wanted);

} // namespace vela::derive
