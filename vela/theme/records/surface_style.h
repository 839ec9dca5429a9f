// How one painted surface looks: shape, fill, border, layers and material. A plain value that derivation
// seeds, skins override field by field and the surface painter consumes. Lengths are pixels at 96 DPI,
// opacities and strengths bytes, angles degrees.
#pragma once

#include "vela/boxed.h"
#include "vela/theme/color/color.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vela {

// The material and its light, as a whole theme, a named material and a single surface set it alike.
struct MaterialShading {
    Color materialTint = hexColor(0xFFFFFF);
    Color backlightColor = hexColor(0x7FC7FF);
    std::uint8_t materialStrength = 120;
    std::uint8_t highlightOpacity = 90;
    std::uint8_t reflectionOpacity = 60;
    std::uint8_t grainOpacity = 28;
    std::uint8_t materialDepth = 64;
    std::uint8_t backlightOpacity = 0;
    std::uint8_t innerGlow = 0;
    std::uint8_t rimLight = 40;
    std::uint8_t materialLightElevation = 48; // degrees above the surface, 0 to 90
    std::uint8_t roughness = 96;
    std::uint8_t specular = 96;
    std::uint8_t ambientOcclusion = 40;
    std::uint8_t edgeWear = 0;
    std::uint8_t innerShadow = 90;
    std::uint8_t textureOpacity = 110;
    std::int32_t materialLightAngle = 225;
    std::int32_t materialScale = 24;
    std::int32_t materialAngle = 0;
    std::int32_t lightBlobScale = 180;
    std::int32_t lightBlobAngle = 0;
    std::int32_t animationSpeed = 0;
    std::int32_t innerShadowSize = 4;
    MaterialFinish finish = MaterialFinish::Default;

    friend bool operator==(const MaterialShading&, const MaterialShading&) = default;
};

// Highlights, relief and edges by that share; what a material is made of stays.
void dimLight(MaterialShading& shading, int percent) noexcept;

// Where textures and gradients lie on a surface.
struct SurfaceMapping {
    MappingSpace uvMapping = MappingSpace::Local;
    std::int32_t uvScale = 256;
    std::int32_t uvOffsetX = 0;
    std::int32_t uvOffsetY = 0;
    GradientKind gradientKind = GradientKind::Linear;
    GradientDirection gradientDirection = GradientDirection::Vertical;

    friend bool operator==(const SurfaceMapping&, const SurfaceMapping&) = default;
};

struct Insets {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    friend bool operator==(const Insets&, const Insets&) = default;
};

// A colour that a skin gives directly or by naming a palette role; a role, when given, wins over the colour.
struct ThemeColor {
    Color color = hexColor(0xFFFFFF);
    std::optional<PaletteRole> role;

    friend bool operator==(const ThemeColor&, const ThemeColor&) = default;
};

// How a bitmap takes the colours of the theme.
struct BitmapTint {
    TintMode mode = TintMode::None;
    ThemeColor primary;
    ThemeColor secondary{hexColor(0x000000), {}};
    std::vector<ThemeColor> palette; // from dark to light
    MaskChannel maskChannel = MaskChannel::Alpha;
    std::uint8_t amount = 255;
    std::uint8_t coverageThreshold = 0;
    bool preserveLuminance = false;
    bool invertMask = false;

    friend bool operator==(const BitmapTint&, const BitmapTint&) = default;
};

struct BitmapSkin {
    std::wstring path; // relative to the skin document
    BitmapTint tint;

    friend bool operator==(const BitmapSkin&, const BitmapSkin&) = default;
};

// How the layout of a bitmap-skinned surface relates to its bitmap.
struct SurfaceGeometry {
    AlphaHitMode mode = AlphaHitMode::ShapeFallback;

    // How high the bands are in which content is laid out, where the bitmap lies, where the pointer meets it,
    // and what its outline loses before content is laid out in it.
    std::int32_t bandHeight = 0;
    Insets paintInsets;
    Insets hitInsets;
    Insets layoutInsets;

    // Kept free by what stands on the surface. A part whose own are all 0 takes the safe ones.
    Insets safeInsets;
    Insets textInsets;
    Insets childLayoutInsets; // of a title bar's buttons
    Insets headerInsets;      // of a popup's icon, title and close button
    Insets actionRowInsets;   // of a popup
    Insets scrollTrackInsets; // not used: nothing here has a scroll bar

    std::wstring maskPath; // relative to the skin document

    friend bool operator==(const SurfaceGeometry&, const SurfaceGeometry&) = default;
};

struct SurfaceStyle : MaterialShading, SurfaceMapping {
    // Defaulted, but not inline: every control's record holds surfaces by the dozen, and five special members
    // of seventy fields each would be repeated for all of them.
    SurfaceStyle() noexcept;
    SurfaceStyle(const SurfaceStyle& other);
    SurfaceStyle(SurfaceStyle&& other) noexcept;
    SurfaceStyle& operator=(const SurfaceStyle& other);
    SurfaceStyle& operator=(SurfaceStyle&& other) noexcept;
    ~SurfaceStyle();

    ShapeKind shape = ShapeKind::RoundedRect;
    MaterialPreset material = MaterialPreset::None;
    bool materialEnabled = false; // internal: set by the material that was chosen, never by a key

    Color fill = hexColor(0x08161C);
    Color border = hexColor(0x224244);
    Color shadow = hexColor(0x000000);
    Color glow = hexColor(0xC49452);
    Color outline = hexColor(0xC49452);
    Color noise = hexColor(0xFFFFFF);
    Color gradientStart = hexColor(0x0C1F27);
    Color gradientMid = hexColor(0x08161C);
    Color gradientEnd = hexColor(0x050F14);
    Color innerShadowColor = hexColor(0x000000);

    std::uint8_t opacity = 255;
    std::uint8_t alphaThreshold = 16;
    std::uint8_t shadowOpacity = 70;
    std::uint8_t glowOpacity = 60;
    std::uint8_t noiseOpacity = 12;

    std::int32_t shadowOffsetX = 0;
    std::int32_t shadowOffsetY = 2;
    std::int32_t glowRadius = 6;
    std::int32_t outlineWidth = 1;
    std::uint32_t noiseSeed = 1;
    Insets nineSlice;             // at 96 DPI, as wide on the surface as they are in the bitmap
    std::int32_t lengthsDpi = 96; // internal: the DPI that the lengths have been scaled to

    bool drawFill = true;
    bool fillGiven = false; // internal: drawFill is the skin's own word, which outlasts an image
    bool drawBorder = true;
    bool showShadow = false;
    bool showInnerShadow = false;
    bool showGlow = false;
    bool showOutline = false;
    bool useGradient = false;
    bool useGradientMid = false;
    bool useNineSlice = false;
    bool useNoise = false;
    bool useSkinAlphaHitTest = false;

    Boxed<BitmapSkin> image;
    Boxed<SurfaceGeometry> geometry;

    friend bool operator==(const SurfaceStyle& left, const SurfaceStyle& right);
};

// Whether the surface shows a material at all. Where it does not, nothing is computed or kept for it.
bool carriesMaterial(const SurfaceStyle& style) noexcept;

} // namespace vela
