// Titles of the setup's windows: each of them names the product and its version.
#pragma once

#include <string>
#include <string_view>

namespace setup {

// `requested` followed by the product and version; without a title of its own the window gets the setup's.
std::wstring setupTitle(std::wstring_view requested);

} // namespace setup
