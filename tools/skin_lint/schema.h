// The JSON Schema (2020-12) of skin documents, made from the descriptions by which they are read.
#pragma once

#include <string>

namespace vela::lint {

// Pretty-printed, ends with a line feed. Keys are listed as camelCase and snake_case; the readers take
// further spellings of the same words, the schema holds writers to these two.
std::string skinSchema();

} // namespace vela::lint
