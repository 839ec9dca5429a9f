#include "vela/theme/fields/record_copy.h"

#include <cstddef>
#include <cstring>

namespace vela {
namespace {

// Of the members that hold plain bytes; the others of a control's record are surfaces and fonts.
std::size_t plainSize(FieldKind kind) noexcept
{
    switch (kind) {
    case FieldKind::Boolean:
    case FieldKind::Given:
    case FieldKind::Byte:
    case FieldKind::Word: return 1;
    case FieldKind::ColorValue:
    case FieldKind::Length:
    case FieldKind::Integer:
    case FieldKind::Unsigned:
    case FieldKind::Weight: return sizeof(std::int32_t);
    case FieldKind::InsetSides: return sizeof(Insets);
    case FieldKind::Text:
    case FieldKind::Role:
    case FieldKind::Colors:
    case FieldKind::Record:
    case FieldKind::States:
    case FieldKind::Geometry:
    case FieldKind::SurfaceMaterial:
    case FieldKind::SurfaceImage:
    case FieldKind::SurfaceImagePath:
    case FieldKind::SurfaceAlphaShape:
    case FieldKind::ProfileMaterial:
    case FieldKind::ProfilePreset: return 0;
    }
    return 0;
}

} // namespace

void copyRecord(const FieldTable& table, const void* from, void* to)
{
    if (&table == &Fields<SurfaceStyle>::kTable) {
        *static_cast<SurfaceStyle*>(to) = *static_cast<const SurfaceStyle*>(from);
        return;
    }
    if (&table == &Fields<FontSpec>::kTable) {
        *static_cast<FontSpec*>(to) = *static_cast<const FontSpec*>(from);
        return;
    }
    for (const Field& field : table.fields) {
        const auto* const source = static_cast<const std::byte*>(from) + field.offset;
        auto* const target = static_cast<std::byte*>(to) + field.offset;
        if (field.kind == FieldKind::Record || field.kind == FieldKind::States) {
            const std::size_t count = field.kind == FieldKind::States ? kVisualStateCount : 1;
            for (std::size_t i = 0; i < count; ++i)
                copyRecord(tableOf(field), source + i * tableOf(field).recordSize,
                           target + i * tableOf(field).recordSize);
        } else {
            std::memcpy(target, source, plainSize(field.kind));
        }
    }
}

} // namespace vela
