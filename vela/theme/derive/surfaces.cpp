#include "vela/theme/derive/surfaces.h"

#include "vela/theme/color/oklab.h"
#include "vela/theme/records/surface_tones.h"

#include <algorithm>
#include <cmath>

namespace vela::derive {
namespace {

constexpr int kHalfTurn = 180;
constexpr int kFullTurn = 360;

MaterialPreset presetFor(const MaterialProfile& profile, MaterialRole role)
{
    switch (role) {
    case MaterialRole::Surface: return profile.surface;
    case MaterialRole::Control: return profile.control;
    case MaterialRole::Accent: return profile.accent;
    case MaterialRole::None: break;
    }
    return MaterialPreset::None;
}

void applyMaterial(SurfaceStyle& surface, const Context& context, const Face& face)
{
    const MaterialProfile& profile = context.theme.materials;
    const MaterialShading& shading = profile;
    const SurfaceMapping& mapping = profile;
    static_cast<MaterialShading&>(surface) = shading;
    static_cast<SurfaceMapping&>(surface) = mapping;
    if (context.materials && face.drawn)
        surface.material = presetFor(profile, face.material);
    surface.materialEnabled = surface.material != MaterialPreset::None && profile.materialStrength > 0;
    if (face.material == MaterialRole::Accent)
        surface.materialTint = mixOklab(profile.materialTint, lightened(face.fill, 0.12F), 0.7F);
    surface.materialDepth = std::max(surface.materialDepth, context.mode.leastDepth);
    dimLight(surface, face.drawn ? context.mode.traits(face.elevation).light : 0);
    // What is pushed in takes the light from the other side.
    if (face.elevation == Elevation::Pressed || face.elevation == Elevation::Sunken)
        surface.materialLightAngle = (surface.materialLightAngle % kFullTurn + kHalfTurn) % kFullTurn;
}

void shade(SurfaceStyle& surface, const Context& context, const Face& face)
{
    const ElevationTraits& traits = context.mode.traits(face.elevation);
    surface.useGradient = face.drawn && traits.shading != 0;
    surface.gradientStart = lightened(face.fill, traits.shading);
    surface.gradientMid = face.fill;
    surface.gradientEnd = lightened(face.fill, -traits.shading);

    surface.showShadow = face.drawn && traits.shadow > 0;
    surface.shadowOpacity = traits.shadow;
    surface.shadowOffsetX = 0;
    surface.shadowOffsetY = context.mode.shadowOffset;

    surface.showInnerShadow = face.drawn && traits.innerShadow > 0;
    surface.innerShadow = static_cast<std::uint8_t>(surface.innerShadow * traits.innerShadow / 100);
    surface.innerShadowColor = mixOklab(face.fill, hexColor(0x000000), 0.85F);

    surface.useNoise = face.drawn && face.elevation == Elevation::Container && context.mode.noiseOpacity > 0;
    surface.noiseOpacity = context.mode.noiseOpacity;
}

} // namespace

SurfaceStyle surfaceOf(const Context& context, const Face& face, ShapeKind shape)
{
    SurfaceStyle surface;
    applyMaterial(surface, context, face);
    shade(surface, context, face);
    surface.shape = shape;
    surface.fill = face.fill;
    surface.border = face.border;
    surface.shadow = hexColor(0x000000);
    surface.glow = context.focus;
    surface.outline = face.border;
    surface.outlineWidth = 1;
    surface.noise = context.dark ? hexColor(0xFFFFFF) : hexColor(0x000000);
    surface.noiseSeed = 0x2F1B;
    surface.drawFill = face.drawn;
    // Not the border: light and noise fall on it too and would wash it out where it tells the control from
    // its backdrop, and it is one pixel wide at every DPI.
    surface.drawBorder = false;
    surface.showOutline = face.drawn && face.bordered;
    return surface;
}

SurfaceStyle bareSurface(const Context& context, ShapeKind shape)
{
    return surfaceOf(context, {.fill = context.backdrop.fill, .border = context.hairline, .drawn = false},
                     shape);
}

SurfaceStyle flatSurface(const Context& context, Color fill, ShapeKind shape)
{
    return surfaceOf(context, {.fill = fill, .border = fill, .bordered = false}, shape);
}

SurfaceStyle sunkenSurface(const Context& context, Color fill, Color border, ShapeKind shape)
{
    return surfaceOf(context, {.fill = fill, .border = border, .elevation = Elevation::Sunken}, shape);
}

SurfaceStyle containerSurface(const Context& context, Color fill, Color border, ShapeKind shape)
{
    return surfaceOf(context,
                     {.fill = fill,
                      .border = border,
                      .elevation = Elevation::Container,
                      .material = MaterialRole::Surface},
                     shape);
}

Color solidFill(const Context& context, Color wanted, Elevation elevation)
{
    return readableFace(wanted, std::abs(context.mode.traits(elevation).shading), context.solidTextTarget);
}

Face solidFace(const Context& context, Color fill, const Backdrop& backdrop, Elevation elevation)
{
    const ToneRange tones = context.shadedTones(fill, elevation);
    const float standsOut =
        std::min(contrastRatio(tones.darkest, backdrop.tones), contrastRatio(tones.lightest, backdrop.tones));
    const Color rim = lightened(fill, strongestOn(tones) == hexColor(0xFFFFFF) ? -0.06F : 0.06F);
    return {.fill = fill,
            .border = standsOut >= context.markTarget ? rim : context.mark(fill, backdrop.tones),
            .elevation = elevation,
            .material = MaterialRole::Accent};
}

SurfaceStyle badgeSurface(const Context& context, Intent intent, const Backdrop& backdrop, ShapeKind shape)
{
    const Color fill = solidFill(context, context.solidColor(intent), Elevation::Raised);
    return surfaceOf(context, solidFace(context, fill, backdrop, Elevation::Raised), shape);
}

Backdrop backdropOf(const SurfaceStyle& surface, const Backdrop& under)
{
    return {surface.drawFill ? surface.fill : under.fill, surfaceTones(surface, under.tones)};
}

} // namespace vela::derive
