// How text is set: in the theme's fonts, in colours that can be read on what they lie on.
#pragma once

#include "vela/theme/derive/context.h"

namespace vela::derive {

// How the text of a part differs from the theme's.
struct Type {
    std::int32_t points = 0; // added to the theme's size
    std::int32_t weight = 0; // added to the theme's weight
};
inline constexpr Type kBody = {};
inline constexpr Type kLabel = {.points = 0, .weight = 200};
inline constexpr Type kSmall = {.points = -1, .weight = 0};

FontSpec textOf(const DeriveContext& context, Color color, Color disabledColor, Type type = kBody);
// Text in the first of the wanted colours that can be read on the backdrop.
FontSpec textOn(const DeriveContext& context, const Tones& on, std::initializer_list<Color> wanted,
                Type type = kBody);
// Sentences are read in the regular weight, however heavy a skin makes its captions.
FontSpec readingTextOn(const DeriveContext& context, const Tones& on, std::initializer_list<Color> wanted);

} // namespace vela::derive
