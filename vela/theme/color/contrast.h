// WCAG 2.2 contrast on colours, and the picking and nudging that make a pair of colours reach it.
#pragma once

#include "vela/theme/color/color.h"

#include <initializer_list>

namespace vela {

inline constexpr float kTextContrast = 4.5F;         // text on its surface
inline constexpr float kMarkContrast = 3.0F;         // borders, marks and focus rings on what they lie on
inline constexpr float kDisabledTextContrast = 2.5F; // text of a disabled control

float relativeLuminance(Color color) noexcept;        // 0 to 1
float contrastRatio(Color one, Color other) noexcept; // 1 to 21

// The range of tones that a surface shows between its darkest and its lightest place: gradients, translucent
// faces and several surfaces that one colour has to stand on.
struct ToneRange {
    Color darkest = hexColor(0x000000);
    Color lightest = hexColor(0x000000);

    ToneRange() = default;
    ToneRange(Color color) : darkest(color), lightest(color) {}
    ToneRange(Color darkest_, Color lightest_) : darkest(darkest_), lightest(lightest_) {}

    void include(const ToneRange& other) noexcept;
};

// At the worst place; 1 for a colour whose own luminance occurs in the range.
float contrastRatio(Color color, const ToneRange& backdrop) noexcept;

// The one of black and white that stands out more.
Color strongestOn(const ToneRange& backdrop) noexcept;

// The wanted colour, made lighter or darker as little as the ratio asks; black or white when nothing reaches
// it.
Color reaching(Color wanted, const ToneRange& backdrop, float ratio) noexcept;

// The first of the colours that reaches the ratio, else the one that comes nearest, nudged to it.
Color pickReaching(std::initializer_list<Color> wanted, const ToneRange& backdrop, float ratio) noexcept;

// Whether black or white text reaches the ratio on a face whose shading reaches that far to either side of
// its colour, in Oklab lightness. There are middle tones on which neither does.
bool isReadableFace(Color face, float shading, float ratio) noexcept;
// The wanted colour, made darker or lighter until it is such a face.
Color readableFace(Color wanted, float shading, float ratio) noexcept;

} // namespace vela
