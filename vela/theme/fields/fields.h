// What skins can set in a record, described once: for each field its keys, its place in the record and how
// its text is read. Readers, lint, schema and tests walk these tables; a new field is a new row.
#pragma once

#include "vela/theme/records/control_styles.h"
#include "vela/theme/records/spellings.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vela {

enum class FieldKind : std::uint8_t {
    ColorValue, // Color
    Given,      // bool, set by the mere presence of a switch, whose words are the detail, or else of a colour
    Byte,       // std::uint8_t, clamped
    Length,     // std::int32_t, pixels at 96 DPI: it grows with the DPI
    Integer,    // std::int32_t that does not: degrees, counts, points
    Unsigned,   // std::uint32_t
    Boolean,    // bool
    Weight,     // std::int32_t, a name or 100 to 900
    Text,       // std::wstring
    Word,       // an enumeration of one byte; its vocabulary is the detail
    Role,       // std::optional<PaletteRole>
    Colors,     // std::vector<ThemeColor>
    InsetSides, // Insets, as one text or side by side
    Record,     // a record of its own; its table is the detail
    States,     // PerState of such a record
    Geometry,   // Boxed<SurfaceGeometry>, made when one of its keys is present; its table is the detail
    // These work on the whole SurfaceStyle:
    SurfaceMaterial, // a named material or a preset
    SurfaceImage,    // the bitmap and its tint; the table of BitmapSkin is the detail
    SurfaceImagePath,
    SurfaceAlphaShape, // a word of AlphaHitMode where a shape may stand, or a switch
    // And these on the MaterialProfile:
    ProfileMaterial,
    ProfilePreset, // MaterialPreset, a named material counts as its preset
};

enum class KeyRule : std::uint8_t {
    LaterWins, // every key that is present is read in order
    FirstWins, // only the first key that is present is read
};

// The keys are separated by blanks and in reading order. They are compared in normalised form, so each stands
// for its snake_case spelling too. "." is the path of the record itself, and "*" within a key stands for each
// word of kVisualStateWords.
struct Field {
    const char* keys;
    const void* detail; // a Vocabulary or a FieldTable, as the kind says; else null
    std::uint16_t offset;
    std::uint16_t shapedBy; // of a surface: where its record keeps the shape of this part; or kUnshaped
    FieldKind kind;
    KeyRule rule;
};
inline constexpr std::uint16_t kUnshaped = 0xFFFF;

struct FieldTable {
    std::string_view name; // of the record, for messages
    std::span<const Field> fields;
    std::size_t recordSize;
};

inline const Vocabulary& vocabularyOf(const Field& field) noexcept
{
    return *static_cast<const Vocabulary*>(field.detail);
}

inline const FieldTable& tableOf(const Field& field) noexcept
{
    return *static_cast<const FieldTable*>(field.detail);
}

// A member of a nested record, listed without keys because a shape of this record shapes it. The nested
// record's own table describes it.
inline bool isShapedOnly(const Field& field) noexcept { return *field.keys == '\0'; }

inline bool holdsShape(const Field& field) noexcept
{
    return field.kind == FieldKind::Word && field.detail == &kShapeWords;
}

// The table of a record type; that of FontSpec is also the one of the text style.
template <typename Record>
struct Fields {
    static const FieldTable kTable;
};

template <>
const FieldTable Fields<Insets>::kTable;
template <>
const FieldTable Fields<MaterialShading>::kTable;
template <>
const FieldTable Fields<SurfaceMapping>::kTable;
template <>
const FieldTable Fields<BitmapTint>::kTable;
template <>
const FieldTable Fields<BitmapSkin>::kTable;
template <>
const FieldTable Fields<SurfaceGeometry>::kTable;
template <>
const FieldTable Fields<SurfaceStyle>::kTable;
template <>
const FieldTable Fields<FontSpec>::kTable;
template <>
const FieldTable Fields<MaterialProfile>::kTable;
template <>
const FieldTable Fields<Theme>::kTable;
template <>
const FieldTable Fields<ScrollAcceleration>::kTable;
template <>
const FieldTable Fields<ButtonStyle>::kTable;
template <>
const FieldTable Fields<BitmapButtonStyle>::kTable;
template <>
const FieldTable Fields<PanelStyle>::kTable;
template <>
const FieldTable Fields<CardStyle>::kTable;
template <>
const FieldTable Fields<ChromeTitleBarStyle>::kTable;
template <>
const FieldTable Fields<StatusChipStyle>::kTable;
template <>
const FieldTable Fields<ProgressBarStyle>::kTable;
template <>
const FieldTable Fields<ScrollBarStyle>::kTable;
template <>
const FieldTable Fields<CheckBoxStyle>::kTable;
template <>
const FieldTable Fields<SelectBoxStyle>::kTable;
template <>
const FieldTable Fields<ListBoxStyle>::kTable;
template <>
const FieldTable Fields<DateInputStyle>::kTable;
template <>
const FieldTable Fields<TabsStyle>::kTable;
template <>
const FieldTable Fields<MenuBarStyle>::kTable;
template <>
const FieldTable Fields<TableListStyle>::kTable;
template <>
const FieldTable Fields<RichTextStyle>::kTable;
template <>
const FieldTable Fields<TextInputStyle>::kTable;
template <>
const FieldTable Fields<SelectableTextStyle>::kTable;
template <>
const FieldTable Fields<PopupStyle>::kTable;
template <>
const FieldTable Fields<TooltipStyle>::kTable;

// The colours of a theme, in the order of PaletteRole; part of the theme's own table.
extern const FieldTable kPaletteFields;

} // namespace vela
