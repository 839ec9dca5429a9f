// The fields of a surface: its own, those of its material, and those of its bitmap. The order of the rows is
// the order of reading: a material before the shading that refines it, an image before the switch that it
// turns off, colours before switches.
#include "vela/theme/fields/field_rows.h"

namespace vela {
namespace {

struct InsetsRows {
    using Record = Insets;
    static constexpr Field kRows[] = {
        VELA_FIELD(right, "right"),
        VELA_FIELD(left, "left"),
        VELA_FIELD(top, "top"),
        VELA_FIELD(bottom, "bottom"),
    };
};

struct ShadingRows {
    using Record = MaterialShading;
    static constexpr Field kRows[] = {
        VELA_FIELD(finish, "finish surfaceFinish materialFinish"),
        VELA_FIELD(materialTint, "materialTint"),
        VELA_FIELD(backlightColor, "backlightColor"),
        VELA_FIELD(materialStrength, "materialStrength"),
        VELA_FIELD(highlightOpacity, "highlightOpacity"),
        VELA_FIELD(reflectionOpacity, "reflectionOpacity"),
        VELA_FIELD(grainOpacity, "grainOpacity"),
        VELA_FIELD(materialDepth, "materialDepth depth relief bumpDepth"),
        VELA_FIELD(backlightOpacity, "backlightOpacity"),
        VELA_FIELD(innerGlow, "innerGlow"),
        VELA_FIELD(rimLight, "rimLight"),
        VELA_FIELD(materialLightElevation, "materialLightElevation lightElevation"),
        VELA_FIELD(roughness, "roughness materialRoughness"),
        VELA_FIELD(specular, "specular materialSpecular shine shininess"),
        VELA_FIELD(ambientOcclusion, "ambientOcclusion occlusion ao contactShadow"),
        VELA_FIELD(edgeWear, "edgeWear edgeHighlight"),
        VELA_FIELD(innerShadow, "innerShadow innerShadowOpacity insetShadow"),
        VELA_FIELD(textureOpacity, "textureOpacity textureStrength textureMix"),
        VELA_FIELD(materialScale, "materialScale"),
        VELA_FIELD(materialAngle, "materialAngle", FieldKind::Integer),
        VELA_FIELD(materialLightAngle, "materialLightAngle lightAngle", FieldKind::Integer),
        VELA_FIELD(lightBlobScale, "lightBlobScale"),
        VELA_FIELD(lightBlobAngle, "lightBlobAngle", FieldKind::Integer),
        VELA_FIELD(animationSpeed, "animationSpeed", FieldKind::Integer),
        VELA_FIELD(innerShadowSize, "innerShadowSize innerShadowRadius insetShadowSize"),
    };
};

struct MappingRows {
    using Record = SurfaceMapping;
    static constexpr Field kRows[] = {
        VELA_FIELD(uvScale, "uvScale mappingScale"),
        VELA_FIELD(uvOffsetX, "uvOffsetX mappingOffsetX"),
        VELA_FIELD(uvOffsetY, "uvOffsetY mappingOffsetY"),
        VELA_FIELD(uvMapping, "uvMapping mapping materialMapping textureMapping"),
        VELA_FIELD(gradientDirection, "gradientDirection"),
        VELA_FIELD(gradientKind, "gradientKind gradientType"),
    };
};

struct TintRows {
    using Record = BitmapTint;
    static constexpr Field kRows[] = {
        VELA_FIELD(mode, "tint", FieldKind::Word, &kTintSwitchWords),
        VELA_FIELD(mode, "mode tintMode bitmapTintMode tint.mode tint.bitmapMode"),
        VELA_FIELD(primary.role, "role tintRole colorRole tint.role tint.colorRole"),
        VELA_FIELD(primary.color, "color tintColor tint.color"),
        VELA_FIELD(secondary.role, "secondaryRole secondaryColorRole secondaryTintRole tint.secondaryRole "
                                   "tint.secondaryColorRole"),
        VELA_FIELD(secondary.color,
                   "secondaryColor secondaryTintColor tintSecondaryColor tint.secondaryColor"),
        VELA_FIELD(palette, "colors tintPalette tintColors tint.palette tint.colors"),
        VELA_FIELD(maskChannel, "maskChannel tintMaskChannel tint.maskChannel"),
        VELA_FIELD(amount, "amount opacity tintAmount tintOpacity tint.amount tint.opacity"),
        VELA_FIELD(coverageThreshold, "coverageThreshold tintCoverageThreshold tint.coverageThreshold"),
        VELA_FIELD(preserveLuminance, "preserveLuminance tintPreserveLuminance tint.preserveLuminance"),
        VELA_FIELD(invertMask, "invertMask tintInvertMask tint.invertMask"),
    };
};

struct BitmapRows {
    using Record = BitmapSkin;
    static constexpr Field kRows[] = {
        VELA_FIELD(path, ". path source"),
        VELA_FIELD(tint, "."),
    };
};

struct GeometryRows {
    using Record = SurfaceGeometry;
    static constexpr Field kRows[] = {
        VELA_FIELD(mode, "mode geometryMode layoutMode"),
        VELA_FIELD(bandHeight, "bandHeight"),
        VELA_FIELD(safeInsets, "insets safeInsets"),
        VELA_FIELD(paintInsets, "paintInsets"),
        VELA_FIELD(hitInsets, "hitInsets"),
        VELA_FIELD(textInsets, "textInsets"),
        VELA_FIELD(childLayoutInsets, "childLayoutInsets"),
        VELA_FIELD(layoutInsets, "layoutInsets"),
        VELA_FIELD(headerInsets, "headerInsets"),
        VELA_FIELD(actionRowInsets, "actionInsets actionRowInsets"),
        VELA_FIELD(scrollTrackInsets, "scrollTrackInsets"),
        VELA_FIELD(maskPath, "mask alphaMask layoutMask mask.path alphaMask.path layoutMask.path"),
    };
};

struct SurfaceRows {
    using Record = SurfaceStyle;
    static constexpr Field kRows[] = {
        VELA_FIELD(shape, "shape fallbackShape"),
        VELA_WHOLE("material surfaceMaterial materialPreset preset", FieldKind::SurfaceMaterial,
                   &kMaterialPresetWords, KeyRule::FirstWins),
        VELA_WHOLE("image bitmap skin", FieldKind::SurfaceImage, &Fields<BitmapSkin>::kTable),
        VELA_WHOLE("source path", FieldKind::SurfaceImagePath, nullptr),
        VELA_FIELD(geometry, "geometry"),
        VELA_WHOLE("shape bitmapAlphaShape", FieldKind::SurfaceAlphaShape, &kAlphaHitModeWords),
        VELA_BASE(MaterialShading, finish),
        VELA_BASE(SurfaceMapping, uvMapping),

        VELA_FIELD(fill, "fill"),
        VELA_FIELD(border, "border"),
        VELA_FIELD(shadow, "shadow"),
        VELA_FIELD(glow, "glow"),
        VELA_FIELD(outline, "outline"),
        VELA_FIELD(noise, "noise"),
        VELA_FIELD(gradientStart, "gradientStart"),
        VELA_FIELD(gradientMid, "gradientMid"),
        VELA_FIELD(useGradientMid, "gradientMid", FieldKind::Given, nullptr),
        VELA_FIELD(gradientEnd, "gradientEnd"),
        VELA_FIELD(innerShadowColor, "innerShadowColor insetShadowColor"),

        VELA_FIELD(opacity, "opacity"),
        VELA_FIELD(alphaThreshold, "alphaThreshold"),
        VELA_FIELD(shadowOpacity, "shadowOpacity"),
        VELA_FIELD(glowOpacity, "glowOpacity"),
        VELA_FIELD(noiseOpacity, "noiseOpacity"),

        VELA_FIELD(shadowOffsetX, "shadowOffsetX"),
        VELA_FIELD(shadowOffsetY, "shadowOffsetY"),
        VELA_FIELD(glowRadius, "glowRadius"),
        VELA_FIELD(outlineWidth, "outlineWidth"),
        VELA_FIELD(nineSlice, "nineSlice"),
        VELA_FIELD(noiseSeed, "noiseSeed", FieldKind::Unsigned, nullptr),

        VELA_FIELD(drawFill, "drawFill"),
        VELA_FIELD(fillGiven, "drawFill", FieldKind::Given),
        VELA_FIELD(drawBorder, "drawBorder"),
        VELA_FIELD(showShadow, "showShadow"),
        VELA_FIELD(showInnerShadow, "showInnerShadow"),
        VELA_FIELD(showGlow, "showGlow"),
        VELA_FIELD(showOutline, "showOutline"),
        VELA_FIELD(useGradient, "useGradient"),
        VELA_FIELD(useGradientMid, "useGradientMid"),
        VELA_FIELD(useNineSlice, "useNineSlice"),
        VELA_FIELD(useNoise, "useNoise"),
        VELA_FIELD(useSkinAlphaHitTest, "useSkinAlphaHitTest"),
    };
};

} // namespace

VELA_FIELD_TABLE(InsetsRows, "insets");
VELA_FIELD_TABLE(ShadingRows, "material shading");
VELA_FIELD_TABLE(MappingRows, "material mapping");
VELA_FIELD_TABLE(TintRows, "tint");
VELA_FIELD_TABLE(BitmapRows, "image");
VELA_FIELD_TABLE(GeometryRows, "geometry");
VELA_FIELD_TABLE(SurfaceRows, "surface");

} // namespace vela
