// Assignment of style records by their field tables, for code that serves the records of all control kinds:
// the compiler's own assignment of 21 types that hold surfaces by the dozen is long.
#pragma once

#include "vela/theme/fields/fields.h"

namespace vela {

// Both records must be of the type that the table describes, which must be made of plain values, surfaces and
// fonts, as the control kinds' records are.
void copyRecord(const FieldTable& table, const void* from, void* to);

} // namespace vela
