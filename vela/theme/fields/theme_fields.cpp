// The fields of a theme, its fonts and its material profile, and the palette roles, which are the keys of the
// theme's colours.
#include "vela/theme/fields/field_rows.h"
#include "vela/theme/records/palette.h"

#include <array>

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

struct PaletteRows {
    using Record = Theme;
    static constexpr Field kRows[] = {
        VELA_FIELD(frame, "frame"),
        VELA_FIELD(shell, "shell"),
        VELA_FIELD(panel, "panel"),
        VELA_FIELD(header, "header"),
        VELA_FIELD(control, "control"),
        VELA_FIELD(controlHot, "controlHot"),
        VELA_FIELD(controlPressed, "controlPressed"),
        VELA_FIELD(border, "border"),
        VELA_FIELD(accent, "accent"),
        VELA_FIELD(accentHot, "accentHot"),
        VELA_FIELD(text, "text"),
        VELA_FIELD(textHot, "textHot"),
        VELA_FIELD(mutedText, "mutedText"),
        VELA_FIELD(disabledText, "disabledText"),
        VELA_FIELD(disabledFill, "disabledFill"),
    };
};
static_assert(std::size(PaletteRows::kRows) == kPaletteRoleCount);

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

template <std::size_t... kRoles>
constexpr std::array<Spellings, sizeof...(kRoles)> roleSpellings(std::index_sequence<kRoles...>)
{
    return {Spellings{static_cast<PaletteRole>(kRoles), PaletteRows::kRows[kRoles].keys}...};
}

constexpr auto kPaletteRoles = roleSpellings(std::make_index_sequence<kPaletteRoleCount>());

} // namespace

VELA_FIELD_TABLE(FontRows, "font");
VELA_FIELD_TABLE(ProfileRows, "materials");
VELA_FIELD_TABLE(ThemeRows, "theme");
const FieldTable kPaletteFields = {"palette", PaletteRows::kRows, sizeof(Theme)};
const Vocabulary kPaletteRoleWords = {"palette role", kPaletteRoles};

Color paletteColor(const Theme& theme, PaletteRole role) noexcept
{
    const Field& field = kPaletteFields.fields[static_cast<std::size_t>(role)];
    return *reinterpret_cast<const Color*>(reinterpret_cast<const std::byte*>(&theme) + field.offset);
}

Color paletteColor(const Theme& theme, std::wstring_view roleName, Color fallback) noexcept
{
    const std::optional<PaletteRole> role = parseWord<PaletteRole>(roleName);
    return role ? paletteColor(theme, *role) : fallback;
}

Color resolvedColor(const Theme& theme, const ThemeColor& color) noexcept
{
    return color.role ? paletteColor(theme, *color.role) : color.color;
}

} // namespace vela
