// Reads a skin document the way the program does and says what the program would silently pass over.
#pragma once

#include "tools/skin_lint/finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace vela::lint {

// Skin ids met so far, in lower case, with the file that has them: an id counts once over all files.
struct KnownId {
    std::wstring id;
    std::string file;
};

// The findings of one document in the order of their places. Adds the document's ids to those known.
std::vector<Finding> lintDocument(std::wstring_view text, const std::string& file,
                                  std::vector<KnownId>& known);

} // namespace vela::lint
