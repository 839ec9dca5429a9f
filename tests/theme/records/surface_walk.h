// Walks every surface of a style sheet, wherever it lies in a record, by the records' own field tables.
#pragma once

#include "vela/theme/fields/fields.h"
#include "vela/theme/records/style_sheet.h"

#include <string>

namespace vela::testing_surfaces {

template <class Visit>
void visitRecord(const FieldTable& table, const void* record, const std::string& path, const Visit& visit)
{
    const auto* const base = static_cast<const unsigned char*>(record);
    for (const Field& field : table.fields) {
        if (field.kind != FieldKind::Record && field.kind != FieldKind::States)
            continue;
        const FieldTable& part = tableOf(field);
        const std::string keys = field.keys;
        const std::string name = path + "." + keys.substr(0, keys.find(' '));
        const ShapeKind* const shape =
            field.shapedBy == kUnshaped ? nullptr : reinterpret_cast<const ShapeKind*>(base + field.shapedBy);
        const int count = field.kind == FieldKind::States ? kVisualStateCount : 1;
        for (int index = 0; index < count; ++index) {
            const void* const at = base + field.offset + static_cast<std::size_t>(index) * part.recordSize;
            if (&part == &Fields<SurfaceStyle>::kTable)
                visit(name, *static_cast<const SurfaceStyle*>(at), shape);
            else
                visitRecord(part, at, name, visit);
        }
    }
}

// visit(path, surface, shape that its record gives the part, or null)
template <class Visit>
void visitSurfaces(const StyleSheet& sheet, const Visit& visit)
{
    sheet.forEachTable([&visit]<class Record>(ControlKind kind, const VariantTable<Record>& table) {
        for (const auto& variant : table)
            visitRecord(Fields<Record>::kTable, &variant.record,
                        std::to_string(static_cast<int>(kind)) + "." +
                            std::string(variant.name.begin(), variant.name.end()),
                        visit);
    });
}

} // namespace vela::testing_surfaces
