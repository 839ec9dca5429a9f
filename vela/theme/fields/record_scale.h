// Style records at the DPI of a window: every length in them, and nothing else, grows from its 96-DPI value.
#pragma once

#include "vela/theme/fields/fields.h"

#include <cstdint>

namespace vela {

// value * dpi / 96, rounded to the nearest with halves away from zero. A length that is not 0 stays visible.
std::int32_t scaledLength(std::int32_t designPixels, std::int32_t dpi) noexcept;

// Back again, exactly from 96 DPI upwards.
std::int32_t designLength(std::int32_t scaled, std::int32_t dpi) noexcept;

// Walks the description of the record at `record` and scales its lengths in place.
void scaleRecord(void* record, const FieldTable& table, std::int32_t dpi);

template <class Record>
Record scaledToDpi(Record record, std::int32_t dpi)
{
    scaleRecord(&record, Fields<Record>::kTable, dpi);
    return record;
}

} // namespace vela
