// A control's own copy of its record. The sheet keeps what a skin says, however wild; the copy has the
// window's DPI, and lengths of which no sum of a control overflows.
#pragma once

#include "vela/theme/fields/record_scale.h"

namespace vela {

// Limits every length of the record and of the records in it, as painters limit those that they take.
void limitLengths(void* record, const FieldTable& table);

template <class Record>
Record workingStyle(const Record& record, std::int32_t dpi)
{
    Record own = scaledToDpi(record, dpi);
    limitLengths(&own, Fields<Record>::kTable);
    return own;
}

} // namespace vela
