// What a material's material depends on, as the pixel shader reads it: the constants of the overlay on the
// graphics card and of the one in software.
#pragma once

#include "vela/geometry.h"
#include "vela/theme/records/surface_style.h"

#include <cstddef>

namespace vela {

struct ShaderVector {
    float x = 0;
    float y = 0;
    float z = 0;
    float w = 0;
    friend bool operator==(const ShaderVector&, const ShaderVector&) = default;
};

// The shader packs its constants into vectors of four floats, in this order. Angles are radians; strengths
// and opacities stay 0 to 255, the shader divides them.
struct MaterialConstants {
    ShaderVector tint;      // red, green, blue from 0 to 1, 1
    ShaderVector backlight; // likewise
    ShaderVector geometry;  // width, height, origin x, origin y
    ShaderVector material0; // kind, strength, highlight opacity, reflection opacity
    ShaderVector material1; // grain opacity, depth, scale, texture angle
    ShaderVector material2; // light angle, light elevation, light blob scale, light blob angle
    ShaderVector material3; // mapping space, mapping scale, mapping offset x, mapping offset y
    ShaderVector material4; // animation phase, maximum performance, backlight opacity, inner glow
    ShaderVector material5; // rim light, gradient direction, noise seed, surface opacity
    ShaderVector material6; // roughness, specular, ambient occlusion, edge wear
    ShaderVector material7; // texture opacity, finish, reserved, reserved
    friend bool operator==(const MaterialConstants&, const MaterialConstants&) = default;
};

static_assert(sizeof(ShaderVector) == 16 && sizeof(MaterialConstants) == 176);
static_assert(offsetof(MaterialConstants, backlight) == 16 && offsetof(MaterialConstants, geometry) == 32 &&
              offsetof(MaterialConstants, material0) == 48 && offsetof(MaterialConstants, material4) == 112 &&
              offsetof(MaterialConstants, material7) == 160);

// The rectangle is the surface's place in its window. The phase is that of the luminous glass: 0 when its
// light rests, otherwise turns of the light, above 0. What the material does not depend on is 0, so that
// surfaces that material the same have equal constants.
MaterialConstants materialConstants(const SurfaceStyle& style, const Rect& rect, float animationPhase,
                                    PerformanceProfile profile) noexcept;

} // namespace vela
