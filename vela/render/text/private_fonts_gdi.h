// The font files in the resource folder of fonts, known to this process alone.
#pragma once

#include <string>
#include <vector>

namespace vela {

// The paths of those that could be registered; the first call registers them. UI thread only.
const std::vector<std::wstring>& privateFontFiles();

} // namespace vela
