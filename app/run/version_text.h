// Product versions as text, and when two of them count as the same.
#pragma once

#include "app/effects/product_version.h"

#include <string>
#include <string_view>

namespace setup {

// The four parts in decimal, joined with dots.
std::wstring versionText(const ProductVersion& version);

// Commas count as dots, white space around the text and ".0" from the fourth part on do not count: 1.2.3.0 is
// 1.2.3.
std::wstring normalizeVersion(std::wstring_view text);

} // namespace setup
