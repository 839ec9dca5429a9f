// The colours of a theme: their keys are the names of the palette roles.
#include "vela/theme/fields/palette.h"

#include "vela/theme/fields/field_rows.h"

#include <array>

namespace vela {
namespace {

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

template <std::size_t... kRoles>
constexpr std::array<Spellings, sizeof...(kRoles)> roleSpellings(std::index_sequence<kRoles...>)
{
    return {Spellings{static_cast<PaletteRole>(kRoles), PaletteRows::kRows[kRoles].keys}...};
}

constexpr auto kPaletteRoles = roleSpellings(std::make_index_sequence<kPaletteRoleCount>());

} // namespace

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
