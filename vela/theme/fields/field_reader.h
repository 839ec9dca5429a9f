// Reads a skin's settings into records, field by field, as the tables of fields.h describe them. Only what is
// present and readable changes; nothing is reported and nothing throws for bad values.
#pragma once

#include "vela/theme/document/skin_map.h"
#include "vela/theme/fields/fields.h"

#include <cstdint>
#include <string_view>

namespace vela {

// In a section of shapes the word "shape" may be left out of a key: "track" means "trackShape", and a text in
// place of a record is that record's "shape".
enum class KeyStyle : std::uint8_t { Full, ShapeImplied };

// What such a key is then: "track" of "trackShape"; empty for keys that do not end so, as "shape" itself.
std::string_view withoutShapeSuffix(std::string_view key) noexcept;

// The record must be of the type that the table describes.
void readRecord(const SkinView& view, const FieldTable& table, void* record, KeyStyle keys = KeyStyle::Full);

template <typename Record>
void readRecord(const SkinView& view, Record& record)
{
    readRecord(view, Fields<Record>::kTable, &record);
}

// What the map, which must be sorted, holds under the prefix.
template <typename Record>
void readRecord(const SkinMap& map, std::wstring_view prefix, Record& record)
{
    readRecord(SkinView(map).at(prefix), record);
}

// Whether a key is that of a field, or the first segment of one.
bool isFieldKey(const FieldTable& table, std::wstring_view key, KeyStyle keys = KeyStyle::Full);

// Reads one text into the place of a field. The record is the one that holds the field there. False, with
// nothing changed, when the text is no value of the field.
bool readText(const Field& field, std::wstring_view text, void* record, void* place);

// Writes the shape fields of a record, and of the records within it, into the surfaces they shape.
void spreadShapes(const FieldTable& table, void* record) noexcept;

} // namespace vela
