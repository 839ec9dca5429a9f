// The fields of a theme, its fonts and its material profile.
#include "vela/theme/fields/field_rows.h"

namespace vela {
namespace {

struct FontRows {
    using Record = FontSpec;
    static constexpr Field kRows[] = {
        VELA_FIELD(family, "fontFamily"),
        VELA_FIELD(pointSize, "pointSize", FieldKind::Integer),
        VELA_FIELD(weight, "weight", FieldKind::Weight, &kWeightWords),
        VELA_FIELD(color, "color"),
        VELA_FIELD(disabledColor, "disabledColor"),
        VELA_FIELD(italic, "italic"),
        VELA_FIELD(underline, "underline"),
    };
};

// The short names are those of the profile alone; the others it shares with surfaces.
struct ProfileRows {
    using Record = MaterialProfile;
    static constexpr Field kRows[] = {
        VELA_WHOLE("surface main material surfaceMaterial materialPreset preset", FieldKind::ProfileMaterial,
                   &kMaterialPresetWords, KeyRule::FirstWins),
        VELA_FIELD(control, "control controls", FieldKind::ProfilePreset, &kMaterialPresetWords),
        VELA_FIELD(accent, "accent highlight accented", FieldKind::ProfilePreset, &kMaterialPresetWords),
        VELA_FIELD(enabled, "enabled"),
        VELA_FIELD(materialTint, "tint"),
        VELA_FIELD(materialStrength, "strength"),
        VELA_BASE(MaterialShading, finish),
        VELA_FIELD(materialScale, "scale"),
        VELA_FIELD(materialAngle, "angle", FieldKind::Integer),
        VELA_BASE(SurfaceMapping, uvMapping),
    };
};

struct ThemeRows {
    using Record = Theme;
    static constexpr Field kRows[] = {
        VELA_WHOLE(".", FieldKind::Record, &kPaletteFields),
        VELA_FIELD(uiFont.family, "uiFontFamily"),
        VELA_FIELD(uiFont.pointSize, "uiPointSize", FieldKind::Integer),
        VELA_FIELD(uiFont.weight, "uiWeight", FieldKind::Weight, &kWeightWords),
        VELA_FIELD(monoFont.family, "monoFontFamily"),
        VELA_FIELD(monoFont.pointSize, "monoPointSize", FieldKind::Integer),
        VELA_FIELD(monoFont.weight, "monoWeight", FieldKind::Weight, &kWeightWords),
    };
};

} // namespace

VELA_FIELD_TABLE(FontRows, "font");
VELA_FIELD_TABLE(ProfileRows, "materials");
VELA_FIELD_TABLE(ThemeRows, "theme");

} // namespace vela
