// The version in a program's version resource.
#pragma once

#include <array>
#include <cstdint>

namespace setup {

using ProductVersion = std::array<std::uint16_t, 4>;

} // namespace setup
