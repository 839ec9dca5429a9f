// Colours in Oklab, a perceptual space: equal steps look equal, and mixing keeps the hue. Used wherever
// derivation lightens, darkens, blends or turns a skin's colours.
#pragma once

#include "vela/theme/color/color.h"

namespace vela {

struct Oklab {
    float lightness = 0; // 0 black to 1 white
    float a = 0;         // green to red
    float b = 0;         // blue to yellow
};

Oklab oklabOf(Color color) noexcept;
// The nearest colour that a screen can show.
Color colorOf(const Oklab& lab) noexcept;

// 0 gives from, 1 gives to.
Color mixOklab(Color from, Color to, float amount) noexcept;
// Lighter by a part of the whole range from black to white, or darker when negative.
Color lightened(Color color, float amount) noexcept;
// How far two colours look apart: about 0.02 is just visible side by side, black to white is 1.
float visualDistance(Color one, Color other) noexcept;

// The linear light of an sRGB byte, 0 to 1.
float linearLight(std::uint8_t channel) noexcept;

} // namespace vela
